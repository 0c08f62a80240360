#include "web/OvraWindow.h"

#include <cstdio>

#include "web/PageWindows.h"
#include "web/UserTime.h"

OvraWindow::OvraWindow(const QString& window, const QString& page, QObject* parent)
    : QObject(parent), name(window), page(page)
{
    PageWindows::instance()->add(this);
}

OvraWindow::~OvraWindow()
{
    PageWindows::instance()->remove(this);
}

PageWindows* OvraWindow::windows() const
{
    return PageWindows::instance();
}

bool OvraWindow::open_page(const WindowOptions& options, ShowState state)
{
    last_options = options;
    last_state = state;
    loaded = false;
    visible = state != ShowState::Hidden;
    return windows()->open(this, options, state, UserTime::current());
}

bool OvraWindow::reopen_page()
{
    return open_page(last_options, last_state);
}

bool OvraWindow::is_page_open() const
{
    return windows()->host()->has_window(name);
}

void OvraWindow::show_page(ShowState state, quint32 user_time)
{
    last_state = state;
    visible = state != ShowState::Hidden;
    windows()->host()->show(name, state, user_time ? user_time : UserTime::current());
}

void OvraWindow::hide_page()
{
    last_state = ShowState::Hidden;
    visible = false;
    windows()->host()->hide(name);
}

void OvraWindow::close_page()
{
    visible = false;
    loaded = false;
    windows()->host()->close(name);
}

void OvraWindow::resize_page(const QSize& size)
{
    windows()->host()->resize(name, size);
}

void OvraWindow::place_page(const QRect& rect)
{
    windows()->host()->set_geometry(name, rect);
}

void OvraWindow::evaluate_JavaScript(const QString& script)
{
    windows()->host()->evaluate(name, script);
}

void OvraWindow::page_loaded(bool ok)
{
    loaded = ok;
}

void OvraWindow::page_state_changed(ShowState state)
{
    visible = state != ShowState::Hidden;
}

void OvraWindow::page_gone()
{
    loaded = false;
    visible = false;
}

void OvraWindow::log(QString message)
{
    std::printf("%s\n", message.toUtf8().constData());
    std::fflush(stdout);
}
