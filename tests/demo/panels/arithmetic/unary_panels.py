# SPDX-License-Identifier: MIT
import math

import demo


class Unary(demo.PanelTest):
    family = "arithmetic/unary"
    panels = ("root", "logarithm", "square")

    def setUp(self):
        self.use_noise(53, 31)

    def test_root(self):
        self.expect("unary-root", 3, [bytes(min(255, round(16 * math.sqrt(s))) for s in self.samples)])

    def test_logarithm(self):
        curve = [int(32 * math.log(min(255, s + 1)) + 0.5) for s in self.samples]
        self.expect("unary-logarithm", 3, [bytes(curve)])

    def test_square(self):
        self.expect("unary-square", 3, [bytes(round(s * s / 256) for s in self.samples)])  # ties to even
