# SPDX-License-Identifier: MIT
import demo


class Zigzag(demo.PanelTest):
    family = "transforms/zigzag"
    panels = ("order",)

    def test_order(self):
        self.use_noise(53, 31)
        place, steps = {}, iter(range(64))
        for diagonal in range(15):
            cells = [(diagonal - y, y) for y in range(8) if 0 <= diagonal - y < 8]
            for cell in cells if diagonal % 2 else reversed(cells):
                place[cell] = next(steps)
        self.expect("zigzag-order", 1, [bytes(4 * place[x % 8, y % 8] for y in range(24) for x in range(48))])
