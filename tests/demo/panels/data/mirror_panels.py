# SPDX-License-Identifier: MIT
import demo


class Mirror(demo.PanelTest):
    family = "data/mirror"
    panels = ("left-right", "half-turn")

    def test_orders_are_reversed(self):
        self.use_noise(53, 31)
        rows = [self.photo[y * self.width:(y + 1) * self.width] for y in range(self.height)]
        self.expect("mirror-left-right", 3, (pixel for row in rows for pixel in reversed(row)))
        self.expect("mirror-half-turn", 3, reversed(self.photo))
