# SPDX-License-Identifier: MIT
import math
import struct

import demo


def single(x):
    """To the nearest float, as every step of a window is."""
    return struct.unpack("f", struct.pack("f", x))[0]


class Window(demo.PanelTest):
    family = "transforms/window"
    panels = ("cone", "raised-cosines")

    def setUp(self):
        self.use_noise(53, 31)
        self.green = [p[1] for p in self.photo]

    def expect_factors(self, name, factors):
        self.expect(name, 1, [bytes(round(single(single(g * a) * b)) for g, (a, b) in zip(self.green, factors))])

    def test_cone(self):
        square = single(26.5 / 15.5)
        square = single(square * square)

        def factor(x, y):
            from_edge = min(y, 30 - y)
            if from_edge == 0:
                return 0
            dx, dy = 26.5 - x, 15.5 - from_edge
            rows = single(single(square * dy) * dy)
            left = single(26.5 - single(math.sqrt(single(dx * dx + rows))))
            return single(left * single(2 / 53)) if left > 0 else 0
        self.expect_factors("window-cone", ((factor(x, y), 1) for y in range(31) for x in range(53)))

    def test_raised_cosines(self):
        columns, rows = ([single(0.54 - 0.46 * math.cos(2 * math.pi * i / (n - 1))) for i in range(n)]
                         for n in (53, 31))
        self.expect_factors("window-raised-cosines", ((columns[x], rows[y]) for y in range(31) for x in range(53)))
