# SPDX-License-Identifier: MIT
import demo


class Bits(demo.PanelTest):
    family = "data/bits"
    panels = ("mask", "applied")

    def test_bits(self):
        self.use_noise(53, 31)
        bright = [p[1] > 127 for p in self.photo]
        self.expect("bits-mask", 1, [bytes(255 * b for b in bright)])
        self.expect("bits-applied", 3, (a if b else c for a, b, c in zip(self.photo, bright, self.flipped())))
