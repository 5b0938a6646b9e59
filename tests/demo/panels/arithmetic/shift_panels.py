# SPDX-License-Identifier: MIT
import demo


class Shift(demo.PanelTest):
    family = "arithmetic/shift"
    panels = ("planes", "sunset")

    def setUp(self):
        self.use_noise(53, 31)

    def test_bit_planes(self):
        strip_of = [strip for strip in range(8) for _ in range(53 * strip // 8, 53 * (strip + 1) // 8)]
        wanted = bytes(255 * (p[1] >> 7 - strip_of[i % 53] & 1) for i, p in enumerate(self.photo))
        self.expect("shift-planes", 1, [wanted])

    def test_counts_of_channels(self):
        self.expect("shift-sunset", 3, (bytes((p[0], p[1] // 2, p[2] // 4)) for p in self.photo))
