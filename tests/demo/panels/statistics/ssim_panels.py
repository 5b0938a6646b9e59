# SPDX-License-Identifier: MIT
import demo


class Ssim(demo.PanelTest):
    family = "statistics/ssim"
    panels = ("blurred", "itself")

    def setUp(self):
        self.use_noise(53, 31)

    def around(self, x, y, of):
        """The mean of 7 x 7 places, edges repeated."""
        clamp = lambda v, most: min(max(v, 0), most - 1)
        places = [(clamp(x + i, self.width), clamp(y + j, self.height)) for j in range(-3, 4) for i in range(-3, 4)]
        return sum(of(i, j) for i, j in places) / 49

    def test_blurred(self):
        green = [[self.photo[y * self.width + x][1] for x in range(self.width)] for y in range(self.height)]
        blurred = [[self.around(x, y, lambda i, j: green[j][i]) for x in range(self.width)] for y in range(self.height)]
        channels, samples = self.results["ssim-blurred"]
        self.assertEqual(channels, 1)
        a, b = (lambda i, j: green[j][i]), (lambda i, j: blurred[j][i])
        for y in range(0, self.height, 5):
            for x in range(0, self.width, 6):
                ma, mb = self.around(x, y, a), self.around(x, y, b)
                aa = self.around(x, y, lambda i, j: a(i, j) ** 2)
                bb = self.around(x, y, lambda i, j: b(i, j) ** 2)
                ab = self.around(x, y, lambda i, j: a(i, j) * b(i, j))
                c1, c2 = 6.5025, 58.5225
                index = (2 * ma * mb + c1) * (2 * (ab - ma * mb) + c2) / (
                    (ma * ma + mb * mb + c1) * (aa + bb - ma * ma - mb * mb + c2))
                self.assertAlmostEqual(samples[y * self.width + x], max(0, 255 * index), delta=0.6)

    def test_itself(self):
        self.expect("ssim-itself", 1, [bytes([255] * (self.width * self.height))])
