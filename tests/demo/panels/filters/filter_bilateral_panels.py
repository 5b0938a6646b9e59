# SPDX-License-Identifier: MIT
import math

import demo


class FilterBilateral(demo.PanelTest):
    family = "filters/filter_bilateral"
    panels = ("smooth",)

    def setUp(self):
        self.use_noise(53, 31)

    def at(self, x, y):
        column, row = min(max(x, 0), self.width - 1), min(max(y, 0), self.height - 1)
        return self.photo[row * self.width + column]

    def test_smooth(self):
        pixels = self.results.pixels("filter_bilateral-smooth")
        disc = [(i, j) for j in range(-5, 6) for i in range(-5, 6) if i * i + j * j <= 25]
        for y in range(0, self.height, 3):
            for x in range(0, self.width, 4):
                sums, weights = [0, 0, 0], 0
                for i, j in disc:
                    difference = sum(abs(a - b) for a, b in zip(self.at(x + i, y + j), self.at(x, y)))
                    weight = math.exp(-difference ** 2 / 7200) * math.exp(-(i * i + j * j) / 32)
                    weights += weight
                    sums = [s + weight * sample for s, sample in zip(sums, self.at(x + i, y + j))]
                for c in range(3):
                    self.assertAlmostEqual(pixels[y * self.width + x][c], sums[c] / weights, delta=0.501)
