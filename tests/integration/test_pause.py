"""Pause and resume from outside: SIGUSR1 fades to the saved ramps and back."""
import signal
import time

from harness import OvraTestCase, expected_tint, read_ramps, wait_for

TINT = {
    "SaveVersion": 3,
    "UseManualColorSettings": "true",
    "UseManualBrightness": "true",
    "NightTemperature": 2700,
    "NightBrightness": 70,
    "PauseTransitionDuration": 1000,
}


def sample_for(seconds):
    samples = []
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        samples.append(read_ramps())
    return samples


def monotonic_towards(samples, channel, index, increasing):
    values = [s[channel][index] for s in samples]
    pairs = zip(values, values[1:])
    return all(b >= a for a, b in pairs) if increasing else all(b <= a for a, b in pairs)


class PauseBySignal(OvraTestCase):

    def setUp(self):
        super().setUp()
        self.write_config(TINT)

    def test_sigusr1_fades_to_the_saved_ramps_and_back(self):
        tinted = expected_tint(self.original, 2700, 70)
        p = self.start()
        self.wait_for_ramps(tinted)

        p.send(signal.SIGUSR1)
        samples = sample_for(1.6)
        # Somewhere in between there were steps that are neither end.
        self.assertTrue(any(s != samples[0] and s != samples[-1] for s in samples),
                        "the pause jumped instead of fading")
        # Every entry walks one way only: up towards the untinted ramps.
        for channel in range(3):
            for index in (64, 128, 255):
                self.assertTrue(monotonic_towards(samples, channel, index, True),
                                "channel %d entry %d went back and forth" % (channel, index))
        self.assertTrue(wait_for(lambda: read_ramps() == self.original, timeout=10),
                        "the pause did not end on the saved ramps")

        # The pause is kept in the store for the next start.
        self.assertTrue(wait_for(lambda: "OvraPaused=true" in open(self.config_file()).read(),
                                 timeout=10))

        p.send(signal.SIGUSR1)
        samples = sample_for(1.6)
        for channel in range(3):
            for index in (64, 128, 255):
                self.assertTrue(monotonic_towards(samples, channel, index, False),
                                "channel %d entry %d went back and forth" % (channel, index))
        self.wait_for_ramps(tinted, timeout=10)
        self.assertTrue(p.alive())
