#pragma once

#include <QKeySequence>
#include <QObject>
#include <QtGlobal>

class QHotkeyPrivate;

// One key combination bound system-wide, whatever window has the focus:
// `activated` fires when the user presses it. Several hotkeys may share a
// combination; the grab lasts until the last of them lets go.
class QHotkey : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool registered READ isRegistered WRITE setRegistered NOTIFY registeredChanged)
    Q_PROPERTY(QKeySequence shortcut READ shortcut WRITE setShortcut RESET resetShortcut)

public:
    // The combination as the display server knows it: a keycode and a
    // modifier mask.
    struct NativeShortcut
    {
        NativeShortcut() = default;
        NativeShortcut(quint32 key, quint32 modifier) : key(key), modifier(modifier), valid(true) {}
        bool isValid() const { return valid; }
        bool operator==(const NativeShortcut& other) const
        {
            return key == other.key && modifier == other.modifier && valid == other.valid;
        }
        bool operator!=(const NativeShortcut& other) const { return !(*this == other); }

        quint32 key = 0;
        quint32 modifier = 0;
        bool valid = false;
    };

    explicit QHotkey(QObject* parent = nullptr);
    QHotkey(const QKeySequence& shortcut, bool autoRegister, QObject* parent = nullptr);
    QHotkey(Qt::Key keyCode, Qt::KeyboardModifiers modifiers, bool autoRegister,
            QObject* parent = nullptr);
    QHotkey(const NativeShortcut& shortcut, bool autoRegister, QObject* parent = nullptr);
    ~QHotkey() override;

    bool isRegistered() const { return registered; }
    QKeySequence shortcut() const;
    Qt::Key keyCode() const { return key; }
    Qt::KeyboardModifiers modifiers() const { return mods; }
    NativeShortcut currentNativeShortcut() const { return nativeShortcut; }

    // The X server time of the last key press that activated a hotkey, for
    // windows its action opens; 0 before the first.
    static quint32 lastActivationTime();

public slots:
    bool setRegistered(bool registered);
    bool setShortcut(const QKeySequence& shortcut, bool autoRegister = false);
    bool setShortcut(Qt::Key keyCode, Qt::KeyboardModifiers modifiers, bool autoRegister = false);
    bool resetShortcut();
    bool setNativeShortcut(QHotkey::NativeShortcut nativeShortcut, bool autoRegister = false);

signals:
    // Only the service emits it, queued, after its native filter returned.
    void activated(QPrivateSignal);
    void registeredChanged(bool registered);

private:
    friend class QHotkeyPrivate;
    void clear();

    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers mods;
    NativeShortcut nativeShortcut;
    bool registered = false;
};

// Seeds are ignored: the key and the mask tell combinations apart well enough.
inline size_t qHash(const QHotkey::NativeShortcut& shortcut, size_t = 0)
{
    return size_t(shortcut.key ^ shortcut.modifier);
}

Q_DECLARE_METATYPE(QHotkey::NativeShortcut)
