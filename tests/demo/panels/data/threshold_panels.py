# SPDX-License-Identifier: MIT
import demo


class Threshold(demo.PanelTest):
    family = "data/threshold"
    panels = ("flat-ends", "lamp-light")

    def setUp(self):
        self.use_noise(53, 31)

    def test_limits(self):
        self.expect("threshold-lamp-light", 3, (bytes(map(min, p, (255, 200, 120))) for p in self.photo))

    def test_values(self):
        def flat(pixel):
            return bytes(night if s < 90 else sun if s > 170 else s
                         for s, night, sun in zip(pixel, (20, 30, 80), (255, 240, 180)))
        self.expect("threshold-flat-ends", 3, map(flat, self.photo))
