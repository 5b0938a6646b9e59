# SPDX-License-Identifier: MIT
import demo


class Lut(demo.PanelTest):
    family = "data/lut"
    panels = ("posterised", "graded")

    def setUp(self):
        self.use_noise(53, 31)

    def test_posterised(self):
        self.expect("lut-posterised", 3, [bytes((20, 90, 160, 240)[s // 64] for s in self.samples)])

    def test_curves_pass_their_points_and_rise(self):
        got = self.results["lut-graded"][1]
        for c, points in enumerate(((0, 50, 140, 220), (0, 44, 128, 210), (0, 40, 112, 190))):
            curve = dict(zip(self.samples[c::3], got[c::3], strict=True))
            for level, value in zip(range(0, 256, 64), points, strict=True):
                self.assertEqual(curve.get(level, value), value)
            values = [curve[s] for s in sorted(curve)]
            self.assertEqual(values, sorted(values))
