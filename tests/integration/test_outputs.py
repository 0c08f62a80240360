"""Several outputs on a headless Xorg: every CRTC gets the tint, an ignored
monitor gets the neutral record, and every CRTC gets its own ramps back."""
import signal

from harness import (OvraTestCase, crtc_count, expected_tint, make_linear, read_ramps,
                     ramps_close, wait_for)


class ThreeOutputs(OvraTestCase):

    def setUp(self):
        super().setUp()
        self.display = self.xorg_outputs(3)

    def test_every_crtc_is_tinted_but_the_ignored_one(self):
        make_linear(self.display)
        count = crtc_count(self.display)
        self.assertGreaterEqual(count, 3)
        originals = [read_ramps(i, self.display) for i in range(count)]
        self.write_config({
            "SaveVersion": 3,
            "UseManualColorSettings": "true",
            "UseManualBrightness": "true",
            "NightTemperature": 3400,
            "NightBrightness": 80,
            "IgnoreMonitors": "2:",
        })
        p = self.start(env=dict(self.env, DISPLAY=self.display))

        def all_as_expected():
            for i in range(count):
                wanted = (expected_tint(originals[i], 6500, 100) if i == 1
                          else expected_tint(originals[i], 3400, 80))
                if not ramps_close(read_ramps(i, self.display), wanted):
                    return False
            return True

        self.assertTrue(wait_for(all_as_expected, timeout=15),
                        "not every CRTC showed what it should")
        self.assertNotEqual(read_ramps(0, self.display), originals[0])

        p.send(signal.SIGTERM)
        self.assertEqual(p.wait(), 0)
        for i in range(count):
            self.assertEqual(read_ramps(i, self.display), originals[i], "CRTC %d" % i)
