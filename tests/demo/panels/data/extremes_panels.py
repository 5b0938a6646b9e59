# SPDX-License-Identifier: MIT
import demo


class Extremes(demo.PanelTest):
    family = "data/extremes"
    panels = ("brighter", "capped")

    def setUp(self):
        self.use_noise(53, 31)

    def test_brighter(self):
        self.expect("extremes-brighter", 3, (bytes(map(max, p, q)) for p, q in zip(self.photo, self.flipped())))

    def test_capped(self):
        def light(x, y):
            return 255 - 200 * ((2 * x - 52) ** 2 + (2 * y - 30) ** 2) // (53 ** 2 + 31 ** 2)
        lights = [light(x, y) for y in range(31) for x in range(53)]
        self.expect("extremes-capped", 3, (bytes(min(s, l) for s in p) for p, l in zip(self.photo, lights)))
