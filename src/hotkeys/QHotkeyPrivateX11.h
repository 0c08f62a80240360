#pragma once

#include <QString>

#include "hotkeys/QHotkeyPrivate.h"

// The hotkey service on X11: passive key grabs on the root window through
// Xlib on Qt's own display connection, and the key presses they bring read
// in the native event filter.
class QHotkeyPrivateX11 : public QHotkeyPrivate
{
    Q_OBJECT

public:
    // No lock, NumLock, CapsLock, both: a combination fires whatever the
    // state of the two locks.
    static const quint32 specialModifiers[4];

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    // Takes over X error handling while it lives, and records a refused
    // grab instead of letting it pass unseen.
    class HotkeyErrorHandler
    {
    public:
        HotkeyErrorHandler();
        ~HotkeyErrorHandler();
        HotkeyErrorHandler(const HotkeyErrorHandler&) = delete;
        HotkeyErrorHandler& operator=(const HotkeyErrorHandler&) = delete;

        static bool hasError;
        static QString errorString;

    private:
        void* previousHandler = nullptr;
    };

protected:
    quint32 nativeKeycode(Qt::Key keycode) override;
    quint32 nativeModifiers(Qt::KeyboardModifiers modifiers) override;
    bool registerShortcut(QHotkey::NativeShortcut shortcut) override;
    bool unregisterShortcut(QHotkey::NativeShortcut shortcut) override;
};
