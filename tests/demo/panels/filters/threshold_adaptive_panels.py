# SPDX-License-Identifier: MIT
import math

import demo


class ThresholdAdaptive(demo.PanelTest):
    family = "filters/threshold_adaptive"
    panels = ("box", "page", "gauss")

    def setUp(self):
        self.use_noise(53, 31)
        self.green = [pixel[1] for pixel in self.results.pixels("threshold_adaptive-page")]

    def sample(self, x, y):
        return self.green[min(max(y, 0), self.height - 1) * self.width + min(max(x, 0), self.width - 1)]

    def places(self):
        return ((x, y) for y in range(0, self.height, 3) for x in range(0, self.width, 4))

    def test_box(self):
        channels, samples = self.results["threshold_adaptive-box"]
        for x, y in self.places():
            total = sum(self.sample(x + i, y + j) for i in range(-7, 8) for j in range(-7, 8))
            above = 225 * self.sample(x, y) > total - 225 * 10
            self.assertEqual(samples[(y * self.width + x) * channels], 255 if above else 0)

    def test_gauss(self):
        channels, samples = self.results["threshold_adaptive-gauss"]
        sigma = 0.3 * (14 * 0.5 - 1) + 0.8
        taps = [math.exp(-i * i / (2 * sigma * sigma)) for i in range(-7, 8)]
        for x, y in self.places():
            total = sum(a * b * self.sample(x + i, y + j)
                        for i, a in enumerate(taps, -7) for j, b in enumerate(taps, -7))
            above = self.sample(x, y) - (total / sum(taps) ** 2 - 10)
            if abs(above) > 0.01:
                self.assertEqual(samples[(y * self.width + x) * channels], 255 if above > 0 else 0)

    def test_page_has_both(self):
        for panel in ("box", "gauss"):
            self.assertEqual(set(self.results[f"threshold_adaptive-{panel}"][1]), {0, 255})
