#include "HostWindow.h"

#include "HostPage.h"
#include "X11Window.h"

#include <QCloseEvent>
#include <QPlatformSurfaceEvent>
#include <QVBoxLayout>
#include <QWebEngineSettings>
#include <QWebEngineView>
#include <QWindow>
#include <cstdio>

namespace {
// Where a notification-style window waits until its page knows its size.
const QPoint k_offscreen(-10000, -10000);
const int k_raise_interval_ms = 10;
const int k_grab_retry_ms = 100;
} // namespace

HostWindow::HostWindow(const QString& id, QWebEngineProfile* profile, const WindowPolicy& policy)
    : QWidget(nullptr, policy.window_flags())
    , m_id(id)
    , m_policy(policy)
    , m_view(new QWebEngineView(this))
    , m_page(new HostPage(profile, m_view))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_view);

    QWebEngineSettings* settings = m_page->settings();
    settings->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    settings->setAttribute(QWebEngineSettings::ErrorPageEnabled, false);
    settings->setAttribute(QWebEngineSettings::FocusOnNavigationEnabled, !policy.no_focus);
    m_view->setPage(m_page);
    m_view->setContextMenuPolicy(Qt::NoContextMenu);
    setFocusProxy(m_view);

    if (policy.translucent) {
        setAttribute(Qt::WA_TranslucentBackground);
        setAttribute(Qt::WA_NoSystemBackground);
        m_page->setBackgroundColor(Qt::transparent);
    }
    setAttribute(Qt::WA_ShowWithoutActivating, policy.no_focus);
    if (policy.start_offscreen)
        move(k_offscreen);

    m_raise_timer.setInterval(k_raise_interval_ms);
    connect(&m_raise_timer, &QTimer::timeout, this, [this] { raise(); });
    m_grab_retry.setSingleShot(true);
    m_grab_retry.setInterval(k_grab_retry_ms);
    connect(&m_grab_retry, &QTimer::timeout, this, &HostWindow::try_grab);
    connect(m_page, &QWebEnginePage::loadFinished, this, &HostWindow::loaded);
}

HostWindow::~HostWindow()
{
    release_grab();
    // The page goes before the view and the profile it was made with.
    m_view->setPage(nullptr);
    delete m_page;
}

void HostWindow::load(const QUrl& url)
{
    m_page->load_home(url);
}

void HostWindow::place(const QRect& rect)
{
    setGeometry(rect);
}

void HostWindow::set_size(const QSize& size)
{
    resize(size);
}

void HostWindow::set_policy(const WindowPolicy& policy)
{
    const bool flags_changed = policy.window_flags() != m_policy.window_flags();
    m_policy = policy;
    setAttribute(Qt::WA_ShowWithoutActivating, policy.no_focus);
    m_page->settings()->setAttribute(QWebEngineSettings::FocusOnNavigationEnabled,
                                     !policy.no_focus);
    if (flags_changed)
        apply_window_flags();
    if (!m_exposed)
        return;
    if (policy.keep_raised)
        m_raise_timer.start();
    else
        m_raise_timer.stop();
    if (policy.grab_keyboard)
        try_grab();
    else
        release_grab();
}

void HostWindow::apply_window_flags()
{
    // New flags unmap the window; it comes back as it was, without taking
    // focus, since nobody asked for it to come forward.
    const bool visible = isVisible();
    setWindowFlags(m_policy.window_flags());
    if (visible)
        apply_state(m_state);
}

void HostWindow::apply_state(ShowState state)
{
    switch (state) {
    case ShowState::Hidden:
        hide();
        break;
    case ShowState::Normal:
        showNormal();
        break;
    case ShowState::Minimized:
        showMinimized();
        break;
    case ShowState::Maximized:
        showMaximized();
        break;
    case ShowState::Fullscreen:
        showFullScreen();
        break;
    }
}

void HostWindow::show_in(ShowState state, quint32 user_time)
{
    const bool was_visible = isVisible();
    m_state = state;
    const bool wants_focus = state != ShowState::Hidden && state != ShowState::Minimized
                             && !m_policy.no_focus;
    // The window manager judges a new window by its user time when it maps
    // it. Qt, at the show, writes its own last event time on a user time
    // window of its making, which the manager reads instead: the user's time
    // goes there again right behind the map request, in the same stream, so
    // that a manager that reads it on the map request reads ours. The
    // activation request below carries it either way.
    const bool mark = !was_visible && wants_focus && user_time;
    if (mark)
        X11Window::set_user_time(xid(), user_time);
    apply_state(state);
    if (mark)
        X11Window::set_user_time(xid(), user_time);
    if (wants_focus)
        activate_when_mapped(user_time);
}

void HostWindow::bring_forward(quint32 user_time)
{
    if (!isVisible()) {
        fprintf(stderr, "ovra-web: raise of hidden window %s ignored\n", qPrintable(m_id));
        return;
    }
    if (isMinimized()) {
        m_state = ShowState::Normal;
        showNormal();
    }
    raise();
    if (!m_policy.no_focus)
        activate_when_mapped(user_time);
}

void HostWindow::activate_when_mapped(quint32 user_time)
{
    // Focus can only go to a viewable window.
    if (m_exposed) {
        activate(user_time);
    } else {
        m_activate_on_map = true;
        m_pending_time = user_time;
    }
}

quint32 HostWindow::xid()
{
    winId(); // makes the native window if there is none yet
    return quint32(windowHandle()->winId());
}

void HostWindow::activate(quint32 user_time)
{
    m_view->setFocus();
    if (!X11Window::manager_handles_activation()) {
        // Nobody manages focus: take it directly.
        activateWindow();
        return;
    }
    if (user_time) {
        X11Window::set_user_time(xid(), user_time);
        X11Window::request_activation(xid(), user_time, 1);
    } else {
        // A pager's request: window managers grant it even while they
        // prevent focus stealing, which is right for a window the user
        // asked for through ovra.
        X11Window::request_activation(xid(), 0, 2);
    }
}

void HostWindow::evaluate(const QString& script)
{
    m_page->runJavaScript(script);
}

void HostWindow::closeEvent(QCloseEvent* event)
{
    // Only ovra closes windows; a refusing window does not even ask it.
    event->ignore();
    if (!m_policy.refuse_close)
        emit close_requested();
}

void HostWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || !isVisible())
        return;
    const Qt::WindowStates states = windowState();
    ShowState now = ShowState::Normal;
    if (states & Qt::WindowMinimized)
        now = ShowState::Minimized;
    else if (states & Qt::WindowFullScreen)
        now = ShowState::Fullscreen;
    else if (states & Qt::WindowMaximized)
        now = ShowState::Maximized;
    if (now == m_state)
        return;
    m_state = now;
    emit state_changed(now);
}

bool HostWindow::event(QEvent* event)
{
    // The watch follows each new QWindow the widget gets.
    if (event->type() == QEvent::WinIdChange || event->type() == QEvent::Show) {
        if (QWindow* handle = windowHandle())
            handle->installEventFilter(this);
    }
    return QWidget::event(event);
}

void HostWindow::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_raise_timer.stop();
    release_grab();
}

bool HostWindow::eventFilter(QObject* watched, QEvent* event)
{
    // Qt makes the native window anew under the same QWindow when the page's
    // surface arrives after the first show (seen with Qt::ToolTip windows),
    // and QWidget::winId() keeps the old id. The new window's exposure is
    // reported as a mapping of its own, with its id; a grab on the old
    // window died with it.
    if (watched == windowHandle() && event->type() == QEvent::PlatformSurface
        && static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType()
               == QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed) {
        m_exposed = false;
        m_raise_timer.stop();
        release_grab();
    }
    if (watched == windowHandle() && event->type() == QEvent::Expose) {
        const bool exposed = windowHandle()->isExposed();
        if (exposed && !m_exposed)
            on_exposed();
        m_exposed = exposed;
        if (!exposed) {
            m_raise_timer.stop();
            release_grab();
        }
    }
    return QWidget::eventFilter(watched, event);
}

void HostWindow::on_exposed()
{
    m_exposed = true;
    if (m_policy.keep_raised)
        m_raise_timer.start();
    // The grab is asked for (and answered) before the report, so that once
    // ovra hears of the window, keys are already held.
    if (m_policy.grab_keyboard)
        try_grab();
    if (m_activate_on_map) {
        m_activate_on_map = false;
        activate(m_pending_time);
    }
    emit mapped(xid());
}

void HostWindow::try_grab()
{
    if (m_grabbed || !m_exposed || !m_policy.grab_keyboard)
        return;
    if (X11Window::grab_keyboard(xid()) == 0) {
        m_grabbed = true;
        return;
    }
    if (!m_grab_failure_told) {
        fprintf(stderr, "ovra-web: keyboard grab for %s refused, trying again\n",
                qPrintable(m_id));
        m_grab_failure_told = true;
    }
    m_grab_retry.start();
}

void HostWindow::release_grab()
{
    m_grab_retry.stop();
    if (!m_grabbed)
        return;
    X11Window::ungrab_keyboard();
    m_grabbed = false;
    emit grab_released();
}

void HostWindow::regrab()
{
    m_grabbed = false;
    try_grab();
}
