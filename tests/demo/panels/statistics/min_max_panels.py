# SPDX-License-Identifier: MIT
import demo


class MinMax(demo.PanelTest):
    family = "statistics/min_max"
    panels = ("above", "stretched")

    def setUp(self):
        self.use_noise(53, 31)

    def test_above(self):
        least = [[min(s) for s in zip(*self.photo[y * 53:(y + 1) * 53])] for y in range(31)]
        self.assertGreater(max(map(max, least)), 0)
        self.expect("min_max-above", 3,
                    (bytes(s - l for s, l in zip(p, least[i // 53])) for i, p in enumerate(self.photo)))

    def test_stretched(self):
        green = [p[1] for p in self.photo]
        low, high = min(green), max(green)
        self.expect("min_max-stretched", 1, [bytes((g - low) * 255 // (high - low) for g in green)])
