# SPDX-License-Identifier: MIT
import demo


class Transpose(demo.PanelTest):
    family = "data/transpose"
    panels = ("transposed",)

    def test_rows_are_columns(self):
        self.use_noise(53, 31)
        self.expect("transpose-transposed", 3,
                    (self.photo[y * self.width + x] for x in range(self.width) for y in range(self.height)))
