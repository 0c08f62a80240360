"""A value changed in the store before a start shows in the ramps."""
import signal

from harness import OvraTestCase, expected_tint, read_ramps


class StoreDrivesTint(OvraTestCase):

    def run_with_night_temperature(self, kelvin):
        self.write_config({
            "SaveVersion": 3,
            "UseManualColorSettings": "true",
            "UseManualBrightness": "true",
            "NightTemperature": kelvin,
            "NightBrightness": 80,
        })
        p = self.start()
        expected = expected_tint(self.original, kelvin, 80)
        self.wait_for_ramps(expected)
        ramps = read_ramps()
        p.send(signal.SIGTERM)
        self.assertEqual(p.wait(), 0)
        self.assertEqual(read_ramps(), self.original)
        return ramps

    def test_night_temperature_from_the_store_reaches_the_blue_ramp(self):
        warm = self.run_with_night_temperature(2700)
        warmer = self.run_with_night_temperature(3400)
        self.assertNotEqual(warm[2], warmer[2])
        self.assertEqual(warm[0], warmer[0], "red leads below 6500 K in both")
        self.assertLess(warm[2][255], warmer[2][255])
