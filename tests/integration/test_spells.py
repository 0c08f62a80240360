"""Spells given to a second launch reach the running program: a value spell
changes the store and the screen, a refused one changes nothing, and every
spell, understood or not, ends in a save of all settings."""
import subprocess

from harness import BINARY, OvraTestCase, expected_channel, f32, wait_for

# The default table's white point at 3000 K (red, green, blue).
WHITE_3000 = (1.0, .71976951, .42860152)


class SpellsFromASecondLaunch(OvraTestCase):

    def setUp(self):
        super().setUp()
        self.write_config({"SaveVersion": 3, "UseManualColorSettings": "true",
                           "UseManualBrightness": "true", "NightTemperature": 3400,
                           "NightBrightness": 80, "DayTemperature": 6500,
                           "PauseTransitionDuration": 0})
        self.first = self.start()
        self.wait_for_tint()

    def cast(self, *words):
        """Hands the words to the running one and waits until it printed them."""
        second = subprocess.run([BINARY, *words], env=self.env, cwd=self.home,
                                capture_output=True, text=True, timeout=20)
        self.assertEqual(second.returncode, 0, second.stderr)
        spell = " ".join(words)
        self.assertTrue(wait_for(lambda: spell + "\n" in self.first.stdout(), timeout=15),
                        "the running one never got " + spell)

    def tint_3000_at(self, brightness):
        return tuple(expected_channel(self.original[c], WHITE_3000[c], f32(brightness))
                     for c in range(3))

    def test_a_night_temperature_spell_reaches_the_store_and_the_screen(self):
        self.cast("st", "3000")
        self.assertTrue(wait_for(lambda: self.stored().get("NightTemperature") == "3000"),
                        self.stored().get("NightTemperature"))
        self.assertEqual(self.stored().get("DayTemperature"), "6500")
        self.wait_for_ramps(self.tint_3000_at(0.8))

    def test_a_brightness_out_of_range_is_refused_and_changes_nothing(self):
        self.cast("sb", "5")
        # Spells run in order: the next one's tint shows the brightness kept.
        self.cast("st", "3000")
        self.wait_for_ramps(self.tint_3000_at(0.8))
        self.assertTrue(wait_for(lambda: self.stored().get("NightTemperature") == "3000"))
        self.assertEqual(self.stored().get("NightBrightness"), "80")

    def test_an_invalid_spell_still_saves_every_setting(self):
        # The second launch writes its words into the file; only a full save
        # of the running one brings the keys that the file did not have.
        self.assertNotIn("UseGammaFixer", self.stored())
        self.cast("abracadabra")
        self.assertTrue(wait_for(lambda: "UseGammaFixer" in self.stored()),
                        "no full save after an invalid spell")
        self.assertEqual(self.stored().get("NightTemperature"), "3400")

    def test_an_import_spell_writes_its_lower_cased_records_to_the_store(self):
        # The spell's word is lower-cased, so its keys land beside the real ones.
        self.cast("import", "nighttemperature=3000[sep]foo=12[minus]30[sep]bad")
        self.assertTrue(wait_for(lambda: self.stored().get("foo") == "12-30"), self.stored())
        self.assertEqual(self.stored().get("nighttemperature"), "3000")
        self.assertEqual(self.stored().get("NightTemperature"), "3400")
        self.assertIn("bad is invalid line\n", self.first.stdout())
