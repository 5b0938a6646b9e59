# SPDX-License-Identifier: MIT
import math

import demo


class Phase(demo.PanelTest):
    family = "transforms/phase"
    panels = ("directions",)

    def test_directions(self):
        self.use_noise(53, 31)
        green = [p[1] for p in self.photo]

        def direction(x, y):
            here = green[53 * y + x]
            right, below = green[53 * y + min(x + 1, 52)], green[53 * min(y + 1, 30) + x]
            return 128 + round(32 * math.atan2(below - here, right - here))
        self.expect("phase-directions", 1, [bytes(direction(x, y) for y in range(31) for x in range(53))])
