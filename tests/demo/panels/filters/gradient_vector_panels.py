# SPDX-License-Identifier: MIT
import math

import demo


class GradientVector(demo.PanelTest):
    family = "filters/gradient_vector"
    panels = ("directions",)

    def setUp(self):
        self.use_noise(53, 31)

    def gradient(self, x, y):
        def sample(i, j, c):
            column, row = min(max(x + i, 0), self.width - 1), min(max(y + j, 0), self.height - 1)
            return self.photo[row * self.width + column][c]

        def of(c):
            weights = ((-1, 1), (0, 2), (1, 1))
            return (sum(w * (sample(-1, j, c) - sample(1, j, c)) for j, w in weights),
                    sum(w * (sample(i, 1, c) - sample(i, -1, c)) for i, w in weights))
        return max((of(c) for c in range(3)), key=lambda g: g[0] * g[0] + g[1] * g[1])

    def test_directions(self):
        colours = self.results.pixels("gradient_vector-directions")
        for y in range(0, self.height, 2):
            for x in range(0, self.width, 3):
                gx, gy = self.gradient(x, y)
                light = min(255, round(math.hypot(gx, gy)) // 2)
                turns = math.atan2(gy, gx) / (2 * math.pi)
                for c in range(3):
                    away = abs((turns - c / 3 + 0.5) % 1 - 0.5) * 6
                    self.assertAlmostEqual(colours[y * self.width + x][c], light * min(max(2 - away, 0), 1), delta=1)
