# SPDX-License-Identifier: MIT
import math

import demo

WEIGHT = [[(math.sqrt(1 / 8) if u == 0 else 1 / 2) * math.cos((2 * x + 1) * u * math.pi / 16) for u in range(8)]
          for x in range(8)]
ZIGZAG = sorted(range(64), key=lambda i: (i // 8 + i % 8, (i % 8 if (i // 8 + i % 8) % 2 == 0 else i // 8)))
KEPT = (64, 21, 10, 6, 3, 1)


def transformed(block, weight):
    rows = [[sum(weight(k, x) * block[8 * y + x] for x in range(8)) for k in range(8)] for y in range(8)]
    return [sum(weight(k, y) * rows[y][x] for y in range(8)) for k in range(8) for x in range(8)]


class Blocks(demo.PanelTest):
    family = "transforms/dct_8x8"
    panels = ("quality", "quarter")

    def setUp(self):
        self.use_noise(53, 31)
        self.across, self.down = 56, 32

    def block(self, x, y):
        return [self.photo[min(y + j, 30) * 53 + min(x + i, 52)][1] for j in range(8) for i in range(8)]

    def expect_near(self, name, wanted, most):
        channels, samples = self.results[name]
        self.assertEqual((channels, len(samples)), (1, len(wanted)))
        self.assertLessEqual(max(abs(a - min(max(b, 0), 255)) for a, b in zip(samples, wanted)), most)

    def test_quality(self):
        wanted = [0] * (self.across * self.down)
        for y in range(0, self.down, 8):
            for x in range(0, self.across, 8):
                coefficients = transformed([v - 128 for v in self.block(x, y)], lambda u, i: WEIGHT[i][u])
                for i in ZIGZAG[KEPT[x * 6 // self.across]:]:
                    coefficients[i] = 0
                for i, v in enumerate(transformed(coefficients, lambda i, u: WEIGHT[i][u])):
                    wanted[(y + i // 8) * self.across + x + i % 8] = v + 128
        self.expect_near("dct_8x8-quality", wanted, 3)

    def test_quarter(self):
        wanted = []
        for y in range(self.down // 4):
            for x in range(self.across // 4):
                block = self.block(x // 2 * 8, y // 2 * 8)
                wanted.append(sum(block[8 * (y % 2 * 4 + j) + x % 2 * 4 + i] for j in range(4) for i in range(4)) / 16)
        self.expect_near("dct_8x8-quarter", wanted, 2)
