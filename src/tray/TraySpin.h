#pragma once

#include <QObject>
#include <QTimer>

// Turns the icon's mark while the colours change. Its timer runs only then:
// an icon at rest costs no wake-up. Each report of a change keeps the mark
// turning for TURN_MSECS more, so that a tint that moves by a kelvin every
// second or two turns smoothly, and a turn that hears nothing more ends by
// itself, upright.
class TraySpin : public QObject
{
    Q_OBJECT

public:
    static constexpr int STEP_DEGREES = 45;
    static constexpr int STEP_MSECS = 125;
    static constexpr int TURN_MSECS = 2000;

    explicit TraySpin(QObject* parent = nullptr);

    // 0 at rest; while turning STEP_DEGREES, 2 STEP_DEGREES, ... 360, and
    // round again from STEP_DEGREES.
    int angle() const { return current; }
    bool turning() const { return timer.isActive(); }

    // Whether the colours moved since the last report.
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
    int steps_left = 0;
};
