#include "hotkeys/QHotkeyPrivateX11.h"

#include <QGlobalStatic>
#include <QGuiApplication>
#include <QKeySequence>

#include <xcb/xcb.h>
// Xlib last: its macros (None, Bool, Status...) must not reach Qt's headers.
#include <X11/Xlib.h>
#include <X11/Xproto.h>

namespace {

Q_GLOBAL_STATIC(QHotkeyPrivateX11, hotkeyService)

// Qt's own Xlib display, shared with its xcb connection; null on another
// platform or without a GUI application.
Display* display()
{
    if (!qGuiApp)
        return nullptr;
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->display() : nullptr;
}

using ErrorHandler = int (*)(Display*, XErrorEvent*);

int handleError(Display* display, XErrorEvent* error)
{
    const bool grab_request =
        error->request_code == X_GrabKey || error->request_code == X_UngrabKey;
    const bool refusal = error->error_code == BadValue || error->error_code == BadWindow
                         || error->error_code == BadAccess;
    if (!grab_request || !refusal)
        return 0;
    QHotkeyPrivateX11::HotkeyErrorHandler::hasError = true;
    char text[256] = {};
    XGetErrorText(display, error->error_code, text, sizeof(text));
    QHotkeyPrivateX11::HotkeyErrorHandler::errorString = QString::fromLocal8Bit(text);
    return 1;
}

// What a key press's state may hold for a match: Shift, Control, Mod1 and
// Mod4. The lock bits fall away here.
const quint32 COMPARED_MODIFIERS = ShiftMask | ControlMask | Mod1Mask | Mod4Mask;

} // namespace

QHotkeyPrivate* QHotkeyPrivate::instance()
{
    return hotkeyService();
}

const quint32 QHotkeyPrivateX11::specialModifiers[4] = {0, Mod2Mask, LockMask, Mod2Mask | LockMask};

bool QHotkeyPrivateX11::HotkeyErrorHandler::hasError = false;
QString QHotkeyPrivateX11::HotkeyErrorHandler::errorString;

QHotkeyPrivateX11::HotkeyErrorHandler::HotkeyErrorHandler()
{
    previousHandler = reinterpret_cast<void*>(XSetErrorHandler(&handleError));
}

QHotkeyPrivateX11::HotkeyErrorHandler::~HotkeyErrorHandler()
{
    XSetErrorHandler(reinterpret_cast<ErrorHandler>(previousHandler));
    hasError = false;
    errorString.clear();
}

bool QHotkeyPrivateX11::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    // Exactly a key press: one sent by another client (the high bit) is not
    // the user's.
    if (event->response_type != XCB_KEY_PRESS)
        return false;
    const auto* press = static_cast<const xcb_key_press_event_t*>(message);
    activateShortcut(QHotkey::NativeShortcut(press->detail, press->state & COMPARED_MODIFIERS),
                     press->time);
    return false;
}

// X knows keys by keysym names: "Up", "Home", "F5" and letters come through;
// a key whose Qt name is no keysym name and whose code is beyond 16 bits
// (PgUp, Enter, Esc) gets keycode 0, which X reads as any key.
namespace {
// Keys whose name in a key sequence is not the X server's name for them.
// Without this "PgUp" or "Esc" would find no key, and key code 0 grabs
// every key: the default shortcuts would take all Ctrl+Alt combinations.
struct XKeyName
{
    Qt::Key key;
    const char* name;
};
const XKeyName x_key_names[] = {
    {Qt::Key_PageUp, "Prior"},        {Qt::Key_PageDown, "Next"},
    // The page records either Enter key as "Enter": the main one is meant.
    {Qt::Key_Return, "Return"},       {Qt::Key_Enter, "Return"},
    {Qt::Key_Escape, "Escape"},       {Qt::Key_Backspace, "BackSpace"},
    {Qt::Key_Space, "space"},         {Qt::Key_Print, "Print"},
    {Qt::Key_CapsLock, "Caps_Lock"},  {Qt::Key_NumLock, "Num_Lock"},
    {Qt::Key_ScrollLock, "Scroll_Lock"},
};
} // namespace

quint32 QHotkeyPrivateX11::nativeKeycode(Qt::Key keycode)
{
    QByteArray name =
        QKeySequence(QKeyCombination(keycode)).toString(QKeySequence::NativeText).toLatin1();
    for (const XKeyName& known : x_key_names) {
        if (known.key == keycode)
            name = known.name;
    }
    KeySym symbol = XStringToKeysym(name.constData());
    if (symbol == NoSymbol) {
        if (quint32(keycode) > 0xFFFF)
            return 0;
        symbol = KeySym(keycode);
    }
    Display* x = display();
    if (!x)
        return 0;
    return XKeysymToKeycode(x, symbol);
}

quint32 QHotkeyPrivateX11::nativeModifiers(Qt::KeyboardModifiers modifiers)
{
    quint32 mask = 0;
    if (modifiers & Qt::ShiftModifier)
        mask |= ShiftMask;
    if (modifiers & Qt::ControlModifier)
        mask |= ControlMask;
    if (modifiers & Qt::AltModifier)
        mask |= Mod1Mask;
    if (modifiers & Qt::MetaModifier)
        mask |= Mod4Mask;
    return mask;
}

bool QHotkeyPrivateX11::registerShortcut(QHotkey::NativeShortcut shortcut)
{
    Display* x = display();
    if (!x)
        return false;
    QString refusal;
    {
        HotkeyErrorHandler errors;
        for (quint32 special : specialModifiers)
            XGrabKey(x, int(shortcut.key), shortcut.modifier | special, DefaultRootWindow(x),
                     True, GrabModeAsync, GrabModeAsync);
        XSync(x, False);
        if (!errors.hasError)
            return true;
        refusal = errors.errorString;
    }
    warn(QStringLiteral("Failed to register hotkey. Error: ") + refusal);
    // Lets go of the variants that were granted, with a handler of its own.
    unregisterShortcut(shortcut);
    return false;
}

bool QHotkeyPrivateX11::unregisterShortcut(QHotkey::NativeShortcut shortcut)
{
    Display* x = display();
    if (!x)
        return false;
    HotkeyErrorHandler errors;
    for (quint32 special : specialModifiers)
        XUngrabKey(x, int(shortcut.key), shortcut.modifier | special, DefaultRootWindow(x));
    XSync(x, False);
    if (errors.hasError) {
        warn(QStringLiteral("Failed to unregister hotkey. Error: ") + errors.errorString);
        return false;
    }
    return true;
}
