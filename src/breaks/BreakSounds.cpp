#include "breaks/BreakSounds.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

BreakSounds::BreakSounds(QObject* parent) : QObject(parent) {}

bool BreakSounds::ready()
{
    if (!probed) {
        probed = true;
        has_output = !QMediaDevices::audioOutputs().isEmpty();
        if (has_output) {
            tick = make(":/resources/tick-tock.wav", QSoundEffect::Infinite);
            bip = make(":/resources/bip.wav", 1);
        }
    }
    return has_output;
}

QSoundEffect* BreakSounds::make(const char* resource, int loops)
{
    auto* effect = new QSoundEffect(this);
    effect->setSource(QUrl(QStringLiteral("qrc") + QLatin1String(resource)));
    effect->setLoopCount(loops);
    return effect;
}

void BreakSounds::play_tick()
{
    if (ready() && !tick->isPlaying())
        tick->play();
}

void BreakSounds::stop_tick()
{
    if (tick)
        tick->stop();
}

bool BreakSounds::is_tick_playing() const
{
    return tick && tick->isPlaying();
}

void BreakSounds::play_bip()
{
    if (!ready())
        return;
    stop_tick();
    if (!bip->isPlaying())
        bip->play();
}
