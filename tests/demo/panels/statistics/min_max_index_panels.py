# SPDX-License-Identifier: MIT
import demo


class MinMaxIndex(demo.PanelTest):
    family = "statistics/min_max_index"
    panels = ("marked",)

    def test_marked(self):
        self.use_noise(53, 31)
        picture = list(self.photo)

        def mark(place, colour):
            for y in range(31):
                for x in range(53):
                    if abs(x - place % 53) <= 2 and abs(y - place // 53) <= 2:
                        picture[y * 53 + x] = colour

        for c in range(3):
            channel = [p[c] for p in self.photo]
            mark(channel.index(min(channel)), bytes(3))
            mark(channel.index(max(channel)), bytes(255 * (i == c) for i in range(3)))
        self.expect("min_max_index-marked", 3, picture)
