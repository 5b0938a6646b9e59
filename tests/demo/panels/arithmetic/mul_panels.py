# SPDX-License-Identifier: MIT
import demo


class Mul(demo.PanelTest):
    family = "arithmetic/mul"
    panels = ("brighter", "squared")

    def test_products(self):
        self.use_noise(53, 31)
        self.expect("mul-brighter", 3, [bytes(min(255, round(s * 7 / 4)) for s in self.samples)])  # ties to even
        self.expect("mul-squared", 3, [bytes(round(s * s / 256) for s in self.samples)])
