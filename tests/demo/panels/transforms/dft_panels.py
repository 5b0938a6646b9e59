# SPDX-License-Identifier: MIT
import cmath
import math

import demo


def transformed(x, sign):
    n = len(x)
    root = [cmath.exp(sign * 2j * math.pi * k / n) for k in range(n)]
    return [sum(v * root[k * i % n] for i, v in enumerate(x)) for k in range(n)]


def transformed_image(rows, sign):
    rows = [transformed(row, sign) for row in rows]
    return [list(row) for row in zip(*(transformed(column, sign) for column in zip(*rows)))]


class Spectra(demo.PanelTest):
    family = "transforms/dft"
    panels = ("spectrum", "low-pass")

    def setUp(self):
        self.use_noise(53, 34)
        rows = [[self.photo[y * 53 + x][1] for x in range(53)] for y in range(34)]
        self.spectrum = transformed_image(rows, -1)

    def expect_rows(self, name, rows):
        self.expect(name, 1, [bytes(min(max(round(v), 0), 255) for v in row) for row in rows])

    def test_spectrum(self):
        self.expect_rows("dft-spectrum", [[16 * math.log(1 + abs(v)) for v in row] for row in self.spectrum])

    def test_low_pass(self):
        kept = [[v if min(x, 53 - x) <= 3 and min(y, 34 - y) <= 2 else 0 for x, v in enumerate(row)]
                for y, row in enumerate(self.spectrum)]
        self.expect_rows("dft-low-pass", [[v.real / (53 * 34) for v in row] for row in transformed_image(kept, 1)])
