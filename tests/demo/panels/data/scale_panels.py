# SPDX-License-Identifier: MIT
import demo


class Scale(demo.PanelTest):
    family = "data/scale"
    panels = ("stretched", "through-16-bits")

    def setUp(self):
        self.use_noise(53, 31)

    def test_there_and_back(self):
        self.expect("scale-through-16-bits", 3, [self.samples])

    def test_floats(self):
        for got, s in zip(self.results["scale-stretched"][1], self.samples, strict=True):
            self.assertAlmostEqual(got, min(255, max(0, (s / 255 - 0.25) * 510)), delta=0.501)
