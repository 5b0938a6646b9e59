# SPDX-License-Identifier: MIT
import demo


class Border(demo.PanelTest):
    family = "data/border"
    panels = ("framed",)

    def test_edges_are_repeated(self):
        self.use_noise(120, 72)
        wide, high = 10, 6  # the part, from (40, 36), with a frame of 2 and 1
        enlarged = []
        for y in range(8 * (high + 2)):
            for x in range(8 * (wide + 4)):
                column = 40 + min(max(x // 8 - 2, 0), wide - 1)
                row = 36 + min(max(y // 8 - 1, 0), high - 1)
                enlarged.append(self.photo[row * self.width + column])
        self.expect("border-framed", 3, enlarged)
