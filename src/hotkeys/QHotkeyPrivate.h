#pragma once

#include <QAbstractNativeEventFilter>
#include <QMultiHash>
#include <QObject>
#include <QString>

#include "hotkeys/QHotkey.h"

// The one service behind every QHotkey: it keeps the register of bound
// combinations, asks the platform to grab and release them, and turns the
// platform's key presses into `activated` signals. Built at first use and
// alive until the process ends. The register and the platform calls belong
// to the service's thread; other threads reach it through blocking calls.
class QHotkeyPrivate : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    QHotkeyPrivate();
    ~QHotkeyPrivate() override;

    // The platform's service; null once the process is winding down.
    static QHotkeyPrivate* instance();

    QHotkey::NativeShortcut nativeShortcut(Qt::Key keycode, Qt::KeyboardModifiers modifiers);
    bool addShortcut(QHotkey* hotkey);
    bool removeShortcut(QHotkey* hotkey);

    // The time of the last key press that activated a hotkey.
    quint32 lastActivationTime() const { return activationTime; }

    // One line on standard error under the category "QHotkey", unless the
    // category's warnings are switched off.
    static void warn(const QString& text);

protected:
    virtual quint32 nativeKeycode(Qt::Key keycode) = 0;
    virtual quint32 nativeModifiers(Qt::KeyboardModifiers modifiers) = 0;
    virtual bool registerShortcut(QHotkey::NativeShortcut shortcut) = 0;
    virtual bool unregisterShortcut(QHotkey::NativeShortcut shortcut) = 0;

    // Queues `activated` on every hotkey bound to the combination.
    void activateShortcut(QHotkey::NativeShortcut shortcut, quint32 time);

private:
    bool addShortcutInvoked(QHotkey* hotkey);
    bool removeShortcutInvoked(QHotkey* hotkey);
    QHotkey::NativeShortcut nativeShortcutInvoked(Qt::Key keycode,
                                                  Qt::KeyboardModifiers modifiers);
    Qt::ConnectionType connectionToService() const;

    QMultiHash<QHotkey::NativeShortcut, QHotkey*> shortcuts;
    quint32 activationTime = 0;
};
