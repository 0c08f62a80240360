"""Types through the store: what a chosen type leaves in the store is what
the display shows after a restart, and a stored type number alone changes
nothing at start."""
import signal

from harness import OvraTestCase, expected_tint, read_ramps

# The type table: day, night and sleep temperature, then day, night and
# sleep brightness.
TYPE_VALUES = {
    1: (5000, 3400, 2700, 100, 80, 75),   # Health
    2: (0, 0, 0, 100, 80, 75),            # Sleep
    4: (5000, 3400, 2700, 100, 80, 75),   # Programming
    6: (6500, 6500, 6500, 100, 75, 65),   # Sunglasses
    8: (6500, 6500, 6500, 120, 120, 120), # Movie
}

KEYS = ("DayTemperature", "NightTemperature", "SleepLight",
        "DayBrightness", "NightBrightness", "SleepBrightness")


def store_after_type(type_number):
    """The store as a type switch in Manual mode and a save leave it."""
    values = {
        "SaveVersion": 3,
        "OvraType": type_number,
        "OvraMode": 2,
        "UseManualColorSettings": "true",
        "UseManualBrightness": "true",
        "PauseTransitionDuration": 1000,
    }
    values.update(zip(KEYS, TYPE_VALUES[type_number]))
    return values


def inverted_ramps(size):
    """The ramps an inverted display starts from before the tint: a straight
    line from full down to one step above zero."""
    channel = [int((1.0 - j / size) * 65535.0) for j in range(size)]
    return (channel, list(channel), list(channel))


class TypesThroughTheStore(OvraTestCase):

    def run_until_tinted(self, temperature, brightness):
        p = self.start()
        self.wait_for_ramps(expected_tint(self.original, temperature, brightness))
        p.send(signal.SIGTERM)
        self.assertEqual(p.wait(timeout=15), 0)
        self.assertEqual(read_ramps(), self.original)

    def test_switching_type_between_runs_shows_each_types_night_values(self):
        for type_number in (6, 2, 8, 1):
            with self.subTest(type=type_number):
                self.write_config(store_after_type(type_number))
                night_temperature = TYPE_VALUES[type_number][1]
                night_brightness = TYPE_VALUES[type_number][4]
                self.run_until_tinted(night_temperature, night_brightness)
                # The quit saved the type and its values for the next run.
                stored = self.stored()
                self.assertEqual(stored["OvraType"], str(type_number))
                for key, value in zip(KEYS, TYPE_VALUES[type_number]):
                    self.assertEqual(stored[key], str(value), key)
                # And the next run shows the same.
                self.run_until_tinted(night_temperature, night_brightness)

    def test_programming_comes_back_inverted(self):
        values = store_after_type(4)
        values["UseInvertedColors"] = "true"
        self.write_config(values)
        p = self.start()
        size = len(self.original[0])
        self.wait_for_ramps(expected_tint(inverted_ramps(size), 3400, 80))
        p.send(signal.SIGTERM)
        self.assertEqual(p.wait(timeout=15), 0)
        self.assertEqual(read_ramps(), self.original)

    def test_a_stored_type_number_alone_is_not_applied_at_start(self):
        # Movie's number with Health's values: the values decide.
        values = store_after_type(1)
        values["OvraType"] = 8
        self.write_config(values)
        self.run_until_tinted(3400, 80)
        self.assertEqual(self.stored()["OvraType"], "8")
        self.assertEqual(self.stored()["NightBrightness"], "80")
