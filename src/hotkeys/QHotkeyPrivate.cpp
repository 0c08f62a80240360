#include "hotkeys/QHotkeyPrivate.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QLoggingCategory>
#include <QMetaMethod>
#include <QThread>
#include <cstdio>

namespace {
// Qt's own messages go nowhere in this program, so the category only
// decides whether the line is written.
Q_LOGGING_CATEGORY(logQHotkey, "QHotkey")
} // namespace

QHotkeyPrivate::QHotkeyPrivate()
{
    // The filter runs only when the display server sends an event: an idle
    // program gains no wake-up from it.
    if (QAbstractEventDispatcher* dispatcher = QCoreApplication::eventDispatcher())
        dispatcher->installNativeEventFilter(this);
}

QHotkeyPrivate::~QHotkeyPrivate()
{
    if (!shortcuts.isEmpty())
        warn(QStringLiteral("QHotkeyPrivate destroyed with registered shortcuts!"));
    if (QCoreApplication::instance()) {
        if (QAbstractEventDispatcher* dispatcher = QCoreApplication::eventDispatcher())
            dispatcher->removeNativeEventFilter(this);
    }
}

void QHotkeyPrivate::warn(const QString& text)
{
    if (!logQHotkey().isWarningEnabled())
        return;
    std::fprintf(stderr, "%s: %s\n", logQHotkey().categoryName(), text.toLocal8Bit().constData());
    std::fflush(stderr);
}

Qt::ConnectionType QHotkeyPrivate::connectionToService() const
{
    return QThread::currentThread() == thread() ? Qt::DirectConnection
                                                : Qt::BlockingQueuedConnection;
}

QHotkey::NativeShortcut QHotkeyPrivate::nativeShortcut(Qt::Key keycode,
                                                       Qt::KeyboardModifiers modifiers)
{
    QHotkey::NativeShortcut result;
    if (!QMetaObject::invokeMethod(
            this, [&] { return nativeShortcutInvoked(keycode, modifiers); },
            connectionToService(), &result))
        return QHotkey::NativeShortcut();
    return result;
}

bool QHotkeyPrivate::addShortcut(QHotkey* hotkey)
{
    if (hotkey->registered)
        return false;
    bool added = false;
    if (!QMetaObject::invokeMethod(
            this, [&] { return addShortcutInvoked(hotkey); }, connectionToService(), &added))
        return false;
    if (added)
        emit hotkey->registeredChanged(true);
    return added;
}

bool QHotkeyPrivate::removeShortcut(QHotkey* hotkey)
{
    if (!hotkey->registered)
        return false;
    bool removed = false;
    if (!QMetaObject::invokeMethod(
            this, [&] { return removeShortcutInvoked(hotkey); }, connectionToService(), &removed))
        return false;
    if (removed)
        emit hotkey->registeredChanged(false);
    return removed;
}

void QHotkeyPrivate::activateShortcut(QHotkey::NativeShortcut shortcut, quint32 time)
{
    const QList<QHotkey*> bound = shortcuts.values(shortcut);
    if (bound.isEmpty())
        return;
    activationTime = time;
    // Queued: the action runs in its owner's thread once the filter returned.
    const QMetaMethod signal = QMetaMethod::fromSignal(&QHotkey::activated);
    for (QHotkey* hotkey : bound)
        signal.invoke(hotkey, Qt::QueuedConnection);
}

bool QHotkeyPrivate::addShortcutInvoked(QHotkey* hotkey)
{
    const QHotkey::NativeShortcut shortcut = hotkey->nativeShortcut;
    if (!shortcuts.contains(shortcut) && !registerShortcut(shortcut))
        return false;
    // A second hotkey on the same combination shares the grab.
    shortcuts.insert(shortcut, hotkey);
    hotkey->registered = true;
    return true;
}

bool QHotkeyPrivate::removeShortcutInvoked(QHotkey* hotkey)
{
    const QHotkey::NativeShortcut shortcut = hotkey->nativeShortcut;
    if (shortcuts.remove(shortcut, hotkey) == 0)
        return false;
    hotkey->registered = false;
    // Sent with true here; removeShortcut follows with false.
    emit hotkey->registeredChanged(true);
    if (!shortcuts.contains(shortcut))
        return unregisterShortcut(shortcut);
    return true;
}

QHotkey::NativeShortcut QHotkeyPrivate::nativeShortcutInvoked(Qt::Key keycode,
                                                              Qt::KeyboardModifiers modifiers)
{
    // Key code 0 is X's "any key": a grab of it would take every key with
    // these modifiers from every other program.
    const quint32 native_key = nativeKeycode(keycode);
    if (native_key == 0)
        return QHotkey::NativeShortcut();
    return QHotkey::NativeShortcut(native_key, nativeModifiers(modifiers));
}
