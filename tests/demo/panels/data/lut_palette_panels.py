# SPDX-License-Identifier: MIT
import demo


class LutPalette(demo.PanelTest):
    family = "data/lut_palette"
    panels = ("false-colour",)

    def test_false_colour(self):
        self.use_noise(53, 31)
        table = [bytes((2 * i, 0, 255 - 2 * i) if i < 128 else (255, 2 * (i - 128), 0)) for i in range(256)]
        self.expect("lut_palette-false-colour", 3, [table[p[1]] for p in self.photo])
