#include "breaks/RestScreenLite.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

#include "breaks/RestTimer.h"
#include "breaks/SmallWindows.h"

namespace {
const char STYLE[] = R"(
#bgContainer { background: rgba(23, 27, 40, 0.92); }
#label { font: 300 28pt "Roboto", "Helvetica Neue", sans-serif; color: #f3f1ec; }
#pushButton {
    font: 12pt "Roboto", "Helvetica Neue", sans-serif; color: #f3f1ec;
    padding: 8px 28px; border: 1px solid rgba(243, 241, 236, 0.45); border-radius: 18px;
    background: transparent;
}
#pushButton:hover { background: rgba(224, 123, 47, 0.85); border-color: #e07b2f; }
)";
} // namespace

RestScreenLite::RestScreenLite(RestTimer* timer, QScreen* screen, bool primary, QObject* parent)
    : IRestScreen(SmallWindows::unique_name(QStringLiteral("rest_screen_lite")), QString(), timer,
                  screen, primary, parent)
    , widget(new QWidget(nullptr, Qt::FramelessWindowHint | Qt::ToolTip | Qt::WindowStaysOnTopHint))
    , label(new QLabel(widget))
    , pushButton(new QPushButton(tr("Skip"), widget))
{
    widget->setObjectName(QStringLiteral("bgContainer"));
    widget->setAttribute(Qt::WA_TranslucentBackground);
    widget->setAttribute(Qt::WA_StyledBackground);
    widget->setStyleSheet(QLatin1String(STYLE));
    label->setObjectName(QStringLiteral("label"));
    label->setAlignment(Qt::AlignCenter);
    pushButton->setObjectName(QStringLiteral("pushButton"));
    pushButton->setCursor(Qt::PointingHandCursor);
    auto* layout = new QVBoxLayout(widget);
    layout->addStretch(1);
    layout->addWidget(label);
    layout->addSpacing(24);
    layout->addWidget(pushButton, 0, Qt::AlignHCenter);
    layout->addStretch(1);
    connect(pushButton, &QPushButton::clicked, this, &RestScreenLite::on_pushButton_clicked);

    widget->installEventFilter(this);
    widget->setWindowTitle(tr("Rest screen"));
    widget->setGeometry(geometry);
    update_ui();
    set_screen_type();
    widget->show();
    widget->raise();
    if (timer->blocks_keyboard())
        widget->grabKeyboard();
}

RestScreenLite::~RestScreenLite()
{
    delete widget;
}

void RestScreenLite::close_screen()
{
    widget->releaseKeyboard();
    widget->hide();
}

void RestScreenLite::update_ui()
{
    label->setText(tr("Remaining") + ' ' + timer->get_remaining_rest_string());
    // The grab can be refused while another client holds one: ask again.
    if (timer->blocks_keyboard() && widget->isVisible())
        widget->grabKeyboard();
}

void RestScreenLite::set_screen_type()
{
    pushButton->setVisible(!is_strict());
}

void RestScreenLite::set_continue_button()
{
    IRestScreen::set_continue_button();
    pushButton->setText(tr("Continue"));
    pushButton->show();
}

void RestScreenLite::on_pushButton_clicked()
{
    skip_rest();
}
