# SPDX-License-Identifier: MIT
import demo


def halved(rows):
    """The four bands of means and halves of differences; all numbers are exact."""
    def both(a, b):
        return [(p + q) / 2 for p, q in zip(a, b)], [(p - q) / 2 for p, q in zip(a, b)]
    low, high = zip(*(both(a, b) for a, b in zip(rows[::2], rows[1::2])))
    bands = []
    for band in (low, high):
        bands += zip(*(both(row[::2], row[1::2]) for row in band))
    return [list(band) for band in (bands[0], bands[2], bands[1], bands[3])]


def joined(bands):
    rows = []
    for a, d1, d2, d3 in zip(*bands):
        for sign in (1, -1):
            low, high = [p + sign * q for p, q in zip(a, d1)], [p + sign * q for p, q in zip(d2, d3)]
            rows.append([v for p, q in zip(low, high) for v in (p + q, p - q)])
    return rows


class Wavelets(demo.PanelTest):
    family = "transforms/wavelet"
    panels = ("levels", "plain")

    def setUp(self):
        self.use_noise(53, 31)
        rows = [[self.photo[min(y, 30) * 53 + min(x, 52)][1] for x in range(56)] for y in range(32)]
        self.levels = []
        for _ in range(3):
            self.levels.append(halved(rows))
            rows = self.levels[-1][0]

    def expect_rows(self, name, rows):
        self.expect(name, 1, [bytes(min(max(round(v), 0), 255) for v in row) for row in rows])

    def test_levels(self):
        rows = self.levels[-1][0]
        for _, d1, d2, d3 in reversed(self.levels):
            d1, d2, d3 = ([[v + 128 for v in row] for row in band] for band in (d1, d2, d3))
            rows = [a + b for a, b in zip(rows, d2)] + [a + b for a, b in zip(d1, d3)]
        self.expect_rows("wavelet-levels", rows)

    def test_plain(self):
        rows = self.levels[-1][0]
        for _, *details in reversed(self.levels):
            rows = joined([rows] + [[[v if abs(v) >= 8 else 0 for v in row] for row in band] for band in details])
        self.expect_rows("wavelet-plain", rows)
