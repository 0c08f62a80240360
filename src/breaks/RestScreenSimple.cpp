#include "breaks/RestScreenSimple.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include "breaks/RestTimer.h"
#include "breaks/SmallWindows.h"

namespace {
const char BACKGROUND_FILE[] = "background.jpg";
// A picture larger than this is not worth sending to every screen.
const qint64 BACKGROUND_LIMIT = 8 * 1024 * 1024;
} // namespace

RestScreenSimple::RestScreenSimple(RestTimer* timer, QScreen* screen, bool primary, QObject* parent)
    : IRestScreen(SmallWindows::unique_name(QStringLiteral("rest_screen")),
                  QStringLiteral("rest_screen.html"), timer, screen, primary, parent)
{
    open_page(screen_options(QStringLiteral("Rest screen")), ShowState::Normal);
}

QString RestScreenSimple::start_script() const
{
    return QStringLiteral("rest_screen_simple_load_finished();");
}

QString RestScreenStandard::start_script() const
{
    return QStringLiteral("rest_screen_standard_load_finished();");
}

// A page that did not load leaves its window as it is: end_rest() closes it
// all the same.
void RestScreenSimple::page_loaded(bool ok)
{
    OvraWindow::page_loaded(ok);
    shown_seconds = -2;
    shown_type.clear();
    if (ok)
        load_finished();
}

void RestScreenSimple::load_finished()
{
    update_ui();
    evaluate_JavaScript(start_script());
}

void RestScreenSimple::update_ui()
{
    if (!is_page_loaded())
        return;
    set_timer();
    set_screen_type();
}

void RestScreenSimple::set_timer()
{
    const int seconds = qMax(0, timer->get_remaining_rest_int() / 1000);
    if (seconds == shown_seconds)
        return;
    shown_seconds = seconds;
    evaluate_JavaScript(QStringLiteral("set_timer(%1);").arg(seconds));
}

void RestScreenSimple::set_screen_type()
{
    QString script;
    if (use_continue_button)
        script = QStringLiteral("set_continue_button();");
    else if (is_strict())
        script = QStringLiteral("set_strict_screen();");
    else
        script = QStringLiteral("set_normal_screen();");
    if (script == shown_type)
        return;
    shown_type = script;
    evaluate_JavaScript(script);
}

void RestScreenSimple::set_continue_button()
{
    IRestScreen::set_continue_button();
    set_screen_type();
}

QString RestScreenSimple::GET_STRING(QString translation_string)
{
    return QCoreApplication::translate("Translator", translation_string.toLatin1().constData());
}

QString RestScreenSimple::get_background_image()
{
    const QString path = QCoreApplication::applicationDirPath() + QLatin1Char('/')
                         + QLatin1String(BACKGROUND_FILE);
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > BACKGROUND_LIMIT)
        return QString();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QStringLiteral("data:image/jpeg;base64,") + QString::fromLatin1(file.readAll().toBase64());
}
