#pragma once

#include <QObject>

class QSoundEffect;

// The two sounds of the break timer: a tick-tock that loops through a
// productive work period, and a short bip in the last seconds of a period.
// Nothing of the audio system is touched until a sound is first wanted, and a
// machine without an audio output stays silent without a word.
class BreakSounds : public QObject
{
    Q_OBJECT

public:
    explicit BreakSounds(QObject* parent = nullptr);

    void play_tick();
    void stop_tick();
    bool is_tick_playing() const;
    // Plays the bip unless it is still playing.
    void play_bip();

private:
    bool ready();
    QSoundEffect* make(const char* resource, int loops);

    QSoundEffect* tick = nullptr;
    QSoundEffect* bip = nullptr;
    bool probed = false;
    bool has_output = false;
};
