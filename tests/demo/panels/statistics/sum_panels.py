# SPDX-License-Identifier: MIT
import demo


class Sum(demo.PanelTest):
    family = "statistics/sum"
    panels = ("tiles",)

    def test_tiles(self):
        self.use_noise(53, 31)
        means = {}
        for left in range(0, 53, 8):
            for top in range(0, 31, 8):
                rows, columns = range(top, min(top + 8, 31)), range(left, min(left + 8, 53))
                tile = [self.photo[y * 53 + x] for y in rows for x in columns]
                means[left // 8, top // 8] = bytes(int(sum(s) * (1 / len(tile)) + 0.5) for s in zip(*tile))
        self.expect("sum-tiles", 3, (means[x // 8, y // 8] for y in range(31) for x in range(53)))
