# SPDX-License-Identifier: MIT
import demo


class MulScale(demo.PanelTest):
    family = "arithmetic/mul_scale"
    panels = ("vignette", "warmer")

    def setUp(self):
        self.use_noise(53, 31)

    def test_vignette(self):
        width, height = self.width, self.height
        dark = []
        for y in range(height):
            for x in range(width):
                distance = (2 * x - (width - 1)) ** 2 + (2 * y - (height - 1)) ** 2
                left = 255 - 191 * distance // (width ** 2 + height ** 2)
                dark += (s * left // 255 for s in self.samples[3 * (y * width + x):][:3])
        self.expect("mul_scale-vignette", 3, [bytes(dark)])

    def test_light(self):
        light = (255, 220, 170)
        self.expect("mul_scale-warmer", 3, [bytes(s * light[i % 3] // 255 for i, s in enumerate(self.samples))])
