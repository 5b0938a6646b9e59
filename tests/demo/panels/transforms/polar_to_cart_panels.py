# SPDX-License-Identifier: MIT
import math

import demo


class PolarToCart(demo.PanelTest):
    family = "transforms/polar_to_cart"
    panels = ("relief",)

    def test_relief(self):
        self.use_noise(53, 31)
        green = [p[1] for p in self.photo]

        def light(x, y):
            here = green[53 * y + x]
            right, below = green[53 * y + min(x + 1, 52)], green[53 * min(y + 1, 30) + x]
            return min(255, max(0, 128 + round((right + below - 2 * here) * math.sqrt(0.5))))
        self.expect("polar_to_cart-relief", 1, [bytes(light(x, y) for y in range(31) for x in range(53))])
