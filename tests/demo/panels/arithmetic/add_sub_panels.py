# SPDX-License-Identifier: MIT
import demo


class AddSub(demo.PanelTest):
    family = "arithmetic/add_sub"
    panels = ("brighter", "contrast", "exposure", "difference")

    def setUp(self):
        self.use_noise(53, 31)

    def test_constants(self):
        self.expect("add_sub-brighter", 3, [bytes(min(255, s + 50) for s in self.samples)])
        self.expect("add_sub-contrast", 3, [bytes(min(255, 2 * max(0, s - 64)) for s in self.samples)])

    def test_half_the_sum(self):
        other = b"".join(self.flipped())
        half = bytes(round((a + b) / 2) for a, b in zip(self.samples, other))  # ties to even
        self.expect("add_sub-exposure", 3, [half])

    def test_difference(self):
        row = self.width * 3
        moved = [0] * len(self.samples)
        for y in range(self.height - 3):
            for i in range((self.width - 3) * 3):
                here = self.samples[y * row + i]
                moved[y * row + i] = min(255, 2 * abs(self.samples[(y + 3) * row + i + 9] - here))
        self.expect("add_sub-difference", 3, [bytes(moved)])
