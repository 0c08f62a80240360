#include "hotkeys/QHotkey.h"

#include "hotkeys/QHotkeyPrivate.h"

QHotkey::QHotkey(QObject* parent) : QObject(parent) {}

QHotkey::QHotkey(const QKeySequence& shortcut, bool autoRegister, QObject* parent)
    : QHotkey(parent)
{
    setShortcut(shortcut, autoRegister);
}

QHotkey::QHotkey(Qt::Key keyCode, Qt::KeyboardModifiers modifiers, bool autoRegister,
                 QObject* parent)
    : QHotkey(parent)
{
    setShortcut(keyCode, modifiers, autoRegister);
}

QHotkey::QHotkey(const NativeShortcut& shortcut, bool autoRegister, QObject* parent)
    : QHotkey(parent)
{
    setNativeShortcut(shortcut, autoRegister);
}

QHotkey::~QHotkey()
{
    if (registered) {
        if (QHotkeyPrivate* service = QHotkeyPrivate::instance())
            service->removeShortcut(this);
    }
}

quint32 QHotkey::lastActivationTime()
{
    QHotkeyPrivate* service = QHotkeyPrivate::instance();
    return service ? service->lastActivationTime() : 0;
}

QKeySequence QHotkey::shortcut() const
{
    if (key == Qt::Key_unknown)
        return QKeySequence();
    return QKeySequence(QKeyCombination(mods, key));
}

void QHotkey::clear()
{
    key = Qt::Key_unknown;
    mods = Qt::NoModifier;
    nativeShortcut = NativeShortcut();
}

bool QHotkey::setRegistered(bool value)
{
    QHotkeyPrivate* service = QHotkeyPrivate::instance();
    if (value && !registered) {
        if (!nativeShortcut.isValid() || !service)
            return false;
        return service->addShortcut(this);
    }
    if (!value && registered)
        return service && service->removeShortcut(this);
    return true;
}

bool QHotkey::setShortcut(const QKeySequence& shortcut, bool autoRegister)
{
    if (shortcut.isEmpty())
        return resetShortcut();
    // Only the first combination of a sequence counts.
    const int combined = shortcut[0].toCombined();
    const int modifierBits = int(0xFE000000);
    return setShortcut(Qt::Key(combined & ~modifierBits),
                       Qt::KeyboardModifiers(combined & modifierBits), autoRegister);
}

bool QHotkey::setShortcut(Qt::Key keyCode, Qt::KeyboardModifiers modifiers, bool autoRegister)
{
    QHotkeyPrivate* service = QHotkeyPrivate::instance();
    if (!service)
        return false;
    if (registered) {
        if (!autoRegister || !service->removeShortcut(this))
            return false;
    }
    if (keyCode == Qt::Key_unknown) {
        clear();
        return true;
    }
    key = keyCode;
    mods = modifiers;
    nativeShortcut = service->nativeShortcut(keyCode, modifiers);
    if (!nativeShortcut.isValid()) {
        QHotkeyPrivate::warn(QStringLiteral("Unable to map shortcut to native keys. Key: %1 Modifiers: %2")
                                 .arg(int(keyCode))
                                 .arg(int(modifiers)));
        clear();
        return false;
    }
    return autoRegister ? service->addShortcut(this) : true;
}

bool QHotkey::resetShortcut()
{
    if (registered) {
        QHotkeyPrivate* service = QHotkeyPrivate::instance();
        if (!service || !service->removeShortcut(this))
            return false;
    }
    clear();
    return true;
}

bool QHotkey::setNativeShortcut(QHotkey::NativeShortcut shortcut, bool autoRegister)
{
    QHotkeyPrivate* service = QHotkeyPrivate::instance();
    if (registered) {
        if (!autoRegister || !service || !service->removeShortcut(this))
            return false;
    }
    if (!shortcut.isValid()) {
        clear();
        return true;
    }
    key = Qt::Key_unknown;
    mods = Qt::NoModifier;
    nativeShortcut = shortcut;
    if (!autoRegister)
        return true;
    return service && service->addShortcut(this);
}
