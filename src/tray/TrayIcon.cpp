#include "tray/TrayIcon.h"

#include "base/TickPath.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>
#include <iostream>

#include "settings/Defines.h"
#include "settings/SaveKeys.h"
#include "tray/PauserLists.h"

namespace {
// Types 1 to 9, in the order of their numbers.
const char* const TYPE_TEXTS[TrayIcon::TYPE_COUNT] = {
    QT_TRANSLATE_NOOP("TrayIcon", "&Health"),      QT_TRANSLATE_NOOP("TrayIcon", "&Sleep"),
    QT_TRANSLATE_NOOP("TrayIcon", "&Reading"),     QT_TRANSLATE_NOOP("TrayIcon", "&Programming"),
    QT_TRANSLATE_NOOP("TrayIcon", "&Biohacker"),   QT_TRANSLATE_NOOP("TrayIcon", "&Sunglasses"),
    QT_TRANSLATE_NOOP("TrayIcon", "&Dark"),        QT_TRANSLATE_NOOP("TrayIcon", "&Movie"),
    QT_TRANSLATE_NOOP("TrayIcon", "&Overlay"),
};
// The types the settings page offers on this platform, and so the menu.
const int MENU_TYPES[] = {1, 2, 4, 5, 6, 8};

const char* const PAUSER_MENU_TEXTS[3] = {
    QT_TRANSLATE_NOOP("TrayIcon", "Color pausers"),
    QT_TRANSLATE_NOOP("TrayIcon", "Timer pausers"),
    QT_TRANSLATE_NOOP("TrayIcon", "Mouse pausers"),
};

const PauserKind KINDS[3] = {PauserKind::Color, PauserKind::Timer, PauserKind::Mouse};

const int MODE_AUTOMATIC = 1;
const int MODE_MANUAL = 2;
const int MODE_PAUSED = 3;

const int MESSAGE_MSECS = 10000;

const SettingsMap& map_of(const TrayHost& host)
{
    static const SettingsMap empty;
    return host.settings ? *host.settings : empty;
}
} // namespace

TrayIcon::TrayIcon(TrayHost host, QObject* parent)
    : QSystemTrayIcon(parent)
    , host(std::move(host))
    , ghost_setting(map_of(this->host), SaveKeys::USE_GHOST_ICON)
    , optimize_ui_setting(map_of(this->host), SaveKeys::OPTIMIZE_UI_CREATION)
    , spinning_setting(map_of(this->host), SaveKeys::USE_SPINNING_TRAY_ICON)
    , may_spin(QCoreApplication::applicationName() == QLatin1String(Defines::APPLICATION_NAME_OVRA))
{
    create_tray_icon();
    refresh_selected_type();
    refresh_selected_mode();
    connect(this, &QSystemTrayIcon::activated, this, &TrayIcon::icon_activated);
    connect(&turn, &TraySpin::turned, this, [this](int angle) {
        if (shown == TrayArt::Green)
            show_art(TrayArt::Green, angle);
    });
}

TrayIcon::~TrayIcon()
{
    // The menus are widgets without a parent.
    setContextMenu(nullptr);
    delete menu;
    delete mode_menu;
    for (QMenu* pausers : pauser_menus)
        delete pausers;
}

// ---------------------------------------------------------------- building

void TrayIcon::create_tray_icon()
{
    create_actions();
    menu = new QMenu();
    connect(menu, &QMenu::aboutToShow, this, &TrayIcon::tray_icon_menu_about_to_show);
    connect(menu, &QMenu::aboutToHide, this, &TrayIcon::tray_icon_menu_about_to_hide);
    create_mode_menu();
    create_pauser_menus();
    refresh_tray_icon_actions();
    refresh_tray_icon_menu();
    show_art(TrayArt::Red, 0);
    setContextMenu(menu);
}

void TrayIcon::create_actions()
{
    open_window_action = new QAction(this);
    connect(open_window_action, &QAction::triggered, this, [this] {
        if (host.bring_to_front)
            host.bring_to_front();
    });

    mode_group = new QActionGroup(this);
    mode_group->setExclusive(false);
    automatic_action = new QAction(mode_group);
    manual_action = new QAction(mode_group);
    paused_action = new QAction(mode_group);
    for (QAction* mode : mode_group->actions())
        mode->setCheckable(true);
    connect(automatic_action, &QAction::triggered, this, &TrayIcon::change_ovra_mode_to_automatic);
    connect(manual_action, &QAction::triggered, this, &TrayIcon::change_ovra_mode_to_manual);
    connect(paused_action, &QAction::triggered, this, &TrayIcon::change_ovra_mode_to_paused);
    connect(mode_group, &QActionGroup::triggered, this, [this] { refresh_selected_mode(); });

    change_mode_action = new QAction(this);
    connect(change_mode_action, &QAction::triggered, this, &TrayIcon::change_ovra_mode);

    type_group = new QActionGroup(this);
    type_group->setExclusive(true);
    for (int i = 0; i < TYPE_COUNT; ++i) {
        QAction* type = new QAction(type_group);
        type->setCheckable(true);
        const int number = i + 1;
        connect(type, &QAction::triggered, this,
                [this, number](bool checked) { change_ovra_type(checked, number); });
        type_actions[size_t(i)] = type;
    }
    connect(type_group, &QActionGroup::triggered, this, [this] { refresh_selected_type(); });

    using Toggle = void (TrayIcon::*)(bool, const QString&);
    const Toggle toggles[3] = {&TrayIcon::toogle_color_pauser, &TrayIcon::toogle_timer_pauser,
                               &TrayIcon::toogle_mouse_pauser};
    for (PauserKind kind : KINDS) {
        const Toggle toggle = toggles[size_t(kind)];
        for (QAction*& pauser : pauser_actions[size_t(kind)]) {
            pauser = new QAction(this);
            pauser->setCheckable(true);
            connect(pauser, &QAction::triggered, this,
                    [this, toggle, pauser](bool checked) { (this->*toggle)(checked, pauser->text()); });
        }
    }

    quit_action = new QAction(this);
    connect(quit_action, &QAction::triggered, this, [this] {
        if (host.quit)
            host.quit();
    });
}

void TrayIcon::create_mode_menu()
{
    mode_menu = new QMenu();
    mode_menu->addAction(automatic_action);
    mode_menu->addAction(manual_action);
    mode_menu->addAction(paused_action);
}

void TrayIcon::create_pauser_menus()
{
    for (QMenu*& pausers : pauser_menus)
        pausers = new QMenu();
}

void TrayIcon::refresh_tray_icon_actions()
{
    open_window_action->setText(tr("Settings"));
    automatic_action->setText(tr("&Automatic"));
    manual_action->setText(tr("&Manual"));
    paused_action->setText(tr("&Paused"));
    change_mode_action->setText(tr("&Change mode"));
    for (int i = 0; i < TYPE_COUNT; ++i)
        type_actions[size_t(i)]->setText(tr(TYPE_TEXTS[i]));
    quit_action->setText(tr("Exit"));
    mode_menu->setTitle(tr("Mode"));
    for (size_t k = 0; k < pauser_menus.size(); ++k)
        pauser_menus[k]->setTitle(tr(PAUSER_MENU_TEXTS[k]));
}

// The mode menu, the pauser menus and the types the page does not offer here
// exist, but the menu shows what the settings page shows on this platform.
void TrayIcon::refresh_tray_icon_menu()
{
    menu->clear();
    menu->addAction(open_window_action);
    menu->addSeparator();
    for (int type : MENU_TYPES)
        menu->addAction(type_actions[size_t(type - 1)]);
    menu->addSeparator();
    menu->addAction(quit_action);
}

void TrayIcon::refresh_selected_type()
{
    const int type = number(SaveKeys::OVRA_TYPE);
    if (type >= 1 && type <= TYPE_COUNT)
        type_actions[size_t(type - 1)]->setChecked(true);
}

void TrayIcon::refresh_selected_mode()
{
    const int mode = number(SaveKeys::OVRA_MODE);
    if (mode < MODE_AUTOMATIC || mode > MODE_PAUSED)
        return;
    automatic_action->setChecked(mode == MODE_AUTOMATIC);
    manual_action->setChecked(mode == MODE_MANUAL);
    paused_action->setChecked(mode == MODE_PAUSED);
}

// ---------------------------------------------------------------- the icon

OVRA_TICK void TrayIcon::update_tray_icon(bool changing)
{
    // The ghost hides every state, and so every change of state.
    if (ghost_setting.to_bool()) {
        turn.stop();
        show_art(TrayArt::Ghost, 0);
        return;
    }
    const bool loaded = host.is_ovra_loaded && host.is_ovra_loaded();
    if (!loaded && !optimize_ui_setting.to_bool()) {
        turn.stop();
        show_art(TrayArt::Red, 0);
    } else if (host.is_ovra_paused && host.is_ovra_paused()) {
        turn.stop();
        show_art(TrayArt::Yellow, 0);
    } else {
        set_green_tray_icon(changing || (host.colors_changing && host.colors_changing()));
    }
}

OVRA_TICK void TrayIcon::set_green_tray_icon(bool changing)
{
    const bool spinning = may_spin && spinning_setting.to_bool();
    if (spinning)
        turn.colors_changing(changing);
    else
        turn.stop();
    show_art(TrayArt::Green, turn.angle());
}

// The tray is told only of a new picture: an icon at rest is not redrawn.
OVRA_TICK void TrayIcon::show_art(TrayArt art, int angle)
{
    if (art == shown && angle % 360 == angle_shown)
        return;
    shown = art;
    angle_shown = angle % 360;
    setIcon(TrayArtEngine::icon(art, angle));
}

// Without a notification area Qt keeps the icon and shows it once one comes;
// until then a closed window ends the program, which the close says itself.
void TrayIcon::show_icon()
{
    show();
}

// Qt keeps an icon that was shown as visible even while no tray hosts it;
// the way back to a closed window needs a tray that does.
bool TrayIcon::is_visible() const
{
    return isVisible() && QSystemTrayIcon::isSystemTrayAvailable();
}

// Asked every second; the tray hears of it only when the words change.
OVRA_TICK void TrayIcon::set_tooltip(const QString& text)
{
    // Compared with what was last set, not with toolTip(), which asks the
    // platform's icon each second.
    if (text == tooltip_shown)
        return;
    tooltip_shown = text;
    setToolTip(text);
}

void TrayIcon::show_message(const QString& title, const QString& text)
{
    showMessage(title, text, QIcon(), MESSAGE_MSECS);
}

void TrayIcon::show_context_menu()
{
    menu->popup(geometry().topLeft());
}

void TrayIcon::icon_activated(QSystemTrayIcon::ActivationReason reason)
{
    if (reason == QSystemTrayIcon::DoubleClick && host.bring_to_front)
        host.bring_to_front();
}

// ---------------------------------------------------------------- modes and types

void TrayIcon::change_ovra_mode_to_automatic()
{
    if (host.change_mode)
        host.change_mode(MODE_AUTOMATIC);
    save_tray_icon();
}

void TrayIcon::change_ovra_mode_to_manual()
{
    if (host.change_mode)
        host.change_mode(MODE_MANUAL);
    save_tray_icon();
}

void TrayIcon::change_ovra_mode_to_paused()
{
    if (host.change_mode)
        host.change_mode(MODE_PAUSED);
    save_tray_icon();
}

void TrayIcon::change_ovra_mode(bool checked)
{
    if (!checked)
        return;
    if (host.next_mode)
        host.next_mode();
    save_tray_icon();
}

void TrayIcon::change_ovra_type(bool checked, int type)
{
    if (!checked)
        return;
    if (host.change_type)
        host.change_type(type);
    save_tray_icon();
}

void TrayIcon::save_tray_icon()
{
    if (host.save_tray_icon)
        host.save_tray_icon();
}

// ---------------------------------------------------------------- pausers

// The recent applications, three at most, each offered on the list of every
// kind that is switched on, checked when the list names it.
void TrayIcon::refresh_pausers_actions()
{
    const QStringList processes = host.get_last_processes ? host.get_last_processes() : QStringList();
    if (processes.isEmpty())
        return;
    for (PauserKind kind : KINDS) {
        if (!setting(PauserLists::switch_key(kind)))
            continue;
        QMenu* pausers = pauser_menus[size_t(kind)];
        pausers->clear();
        const QString list = text(PauserLists::list_key(kind));
        const int count = qMin(int(processes.size()), PAUSERS_PER_KIND);
        for (int i = 0; i < count; ++i) {
            QAction* pauser = pauser_actions[size_t(kind)][size_t(i)];
            pauser->setText(processes[i]);
            pauser->setChecked(PauserLists::shows_checked(list, processes[i]));
            pausers->addAction(pauser);
        }
    }
}

void TrayIcon::toogle_color_pauser(bool checked, const QString& pauser)
{
    toogle_pauser(PauserKind::Color, checked, pauser);
}

void TrayIcon::toogle_timer_pauser(bool checked, const QString& pauser)
{
    toogle_pauser(PauserKind::Timer, checked, pauser);
}

void TrayIcon::toogle_mouse_pauser(bool checked, const QString& pauser)
{
    toogle_pauser(PauserKind::Mouse, checked, pauser);
}

void TrayIcon::toogle_pauser(PauserKind kind, bool checked, const QString& pauser)
{
    const QString list = PauserLists::toggled(text(PauserLists::list_key(kind)), pauser, checked);
    if (host.save_pausers)
        host.save_pausers(kind, list);
}

// ---------------------------------------------------------------- the map

bool TrayIcon::setting(const char* key) const
{
    if (!host.settings)
        return false;
    const auto found = host.settings->find(QString::fromLatin1(key));
    return found != host.settings->end() && found->second.toBool();
}

int TrayIcon::number(const char* key) const
{
    if (!host.settings)
        return 0;
    const auto found = host.settings->find(QString::fromLatin1(key));
    return found == host.settings->end() ? 0 : found->second.toInt();
}

QString TrayIcon::text(const char* key) const
{
    if (!host.settings)
        return QString();
    const auto found = host.settings->find(QString::fromLatin1(key));
    return found == host.settings->end() ? QString() : found->second.toString();
}
