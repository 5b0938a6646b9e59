# SPDX-License-Identifier: MIT
import demo


class Compare(demo.PanelTest):
    family = "data/compare"
    panels = ("mask", "warm", "dark")

    def setUp(self):
        self.use_noise(53, 31)

    def test_channels(self):
        self.expect("compare-mask", 1, (bytes([255 * (p[0] > p[1])]) for p in self.photo))
        self.expect("compare-warm", 3, (p if p[0] > p[1] else bytes([p[1]] * 3) for p in self.photo))

    def test_constant(self):
        self.expect("compare-dark", 1, (bytes([255 * (max(p) < 140)]) for p in self.photo))
