#pragma once

#include <QObject>
#include <QTimer>

// Turns the icon's mark while the colours change. Its timer runs only then:
// an icon at rest costs no wake-up. The icon is updated once a second and
// says each time whether the colours moved; a tint that moves by a kelvin
// every few seconds should not start and stop the turn, so it goes on for
// QUIET_UPDATES quiet updates more, then ends the turn upright.
class TraySpin : public QObject
{
    Q_OBJECT

public:
    static constexpr int STEP_DEGREES = 45;
    static constexpr int STEP_MSECS = 125;
    static constexpr int QUIET_UPDATES = 2;

    explicit TraySpin(QObject* parent = nullptr);

    // 0 at rest; while turning STEP_DEGREES, 2 STEP_DEGREES, ... 360, and
    // round again from STEP_DEGREES.
    int angle() const { return current; }
    bool turning() const { return timer.isActive(); }

    // Once per update of the icon.
    void colors_changing(bool changing);
    // Upright at once, for a picture that does not turn.
    void stop();

public slots:
    void step();

signals:
    void turned(int angle);

private:
    QTimer timer;
    int current = 0;
    int quiet_updates = 0;
};
