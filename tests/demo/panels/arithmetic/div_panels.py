# SPDX-License-Identifier: MIT
import demo


class Div(demo.PanelTest):
    family = "arithmetic/div"
    panels = ("flat-field", "levels")

    def setUp(self):
        self.use_noise(53, 31)

    def test_flat_field(self):
        width, height = self.width, self.height
        even = []
        for y in range(height):
            for x in range(width):
                distance = (2 * x - (width - 1)) ** 2 + (2 * y - (height - 1)) ** 2
                light = 255 - 159 * distance // (width ** 2 + height ** 2)
                pixel = self.samples[3 * (y * width + x):][:3]
                even += (min(255, round(s * 256 / light)) for s in pixel)  # ties to even
        self.expect("div-flat-field", 3, [bytes(even)])

    def test_levels(self):
        self.expect("div-levels", 3, [bytes(min(255, round(s // 32 * 256 / 7)) for s in self.samples)])
