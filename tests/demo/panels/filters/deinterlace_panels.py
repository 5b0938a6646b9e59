# SPDX-License-Identifier: MIT
import demo


class Deinterlace(demo.PanelTest):
    family = "filters/deinterlace"
    panels = ("joined", "fields")

    def setUp(self):
        self.use_noise(53, 34)

    def test_joined(self):
        _, before = self.results["deinterlace-fields"]
        _, after = self.results["deinterlace-joined"]
        rows = [before[y * self.width:(y + 1) * self.width] for y in range(self.height)]
        for y in range(self.height):
            got = after[y * self.width:(y + 1) * self.width]
            if y % 2 == 0:
                self.assertEqual(got, rows[y])
                continue
            row = lambda n: rows[min(max(n, n % 2), self.height - 2 + n % 2)]
            for x in range(self.width):
                u, d = row(y - 1)[x], row(y + 1)[x]
                line = (7 * (u + d) + 8 * row(y)[x] - 4 * row(y - 2)[x] - 4 * row(y + 2)[x] + row(y - 3)[x]
                        + row(y + 3)[x] + 8) >> 4
                self.assertEqual(got[x], min(max(line, min(u, d)), max(u, d)), (x, y))
