# SPDX-License-Identifier: MIT
import math

import demo


class Magnitude(demo.PanelTest):
    family = "transforms/magnitude"
    panels = ("edges",)

    def test_edges(self):
        self.use_noise(53, 31)
        green = [p[1] for p in self.photo]

        def edge(x, y):
            here = green[53 * y + x]
            right, below = green[53 * y + min(x + 1, 52)], green[53 * min(y + 1, 30) + x]
            return min(255, round(math.hypot(right - here, below - here)))
        self.expect("magnitude-edges", 1, [bytes(edge(x, y) for y in range(31) for x in range(53))])
