# SPDX-License-Identifier: MIT
import demo

DISC = [(i, j) for j in range(-2, 3) for i in range(-2, 3) if abs(i) + abs(j) < 4]


class Morphology(demo.PanelTest):
    family = "filters/morphology"
    panels = ("page", "eroded", "dilated", "opened", "closed")

    def setUp(self):
        self.use_noise(53, 31)

    def grey(self, panel):
        channels, samples = self.results[f"morphology-{panel}"]
        return samples[::channels]

    def under(self, image, best):
        def at(x, y):
            return image[min(max(y, 0), self.height - 1) * self.width + min(max(x, 0), self.width - 1)]

        return [best(at(x + i, y + j) for i, j in DISC) for y in range(self.height) for x in range(self.width)]

    def test_page_has_ink(self):
        self.assertEqual(set(self.grey("page")), {40, 235})

    def test_once(self):
        page = self.grey("page")
        self.assertEqual(list(self.grey("eroded")), self.under(page, min))
        self.assertEqual(list(self.grey("dilated")), self.under(page, max))

    def test_twice(self):
        page = self.grey("page")
        self.assertEqual(list(self.grey("opened")), self.under(self.under(page, min), max))
        self.assertEqual(list(self.grey("closed")), self.under(self.under(page, max), min))
