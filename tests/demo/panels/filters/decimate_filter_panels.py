# SPDX-License-Identifier: MIT
import demo

# Samples of a group, and for each of its results the first sample and the taps.
FRACTIONS = {
    "half": (2, ((-4, (2, -6, -15, 33, 114, 114, 33, -15, -6, 2)),)),
    "two-thirds": (3, ((-3, (2, -18, 27, 163, 102, -16, -5, 1)), (-2, (1, -5, -16, 102, 163, 27, -18, 2)))),
    "three-quarters": (4, ((-3, (2, -15, 22, 187, 81, -23, 2)), (-2, (1, -4, -14, 145, 145, -14, -4, 1)),
                           (0, (2, -23, 81, 187, 22, -15, 2)))),
}


def decimated(line, samples, phases):
    """A list without its ends, whose samples are repeated beyond them."""
    def at(i):
        return line[min(max(i, 0), len(line) - 1)]
    return [min(255, max(0, (sum(tap * at(group * samples + first + i) for i, tap in enumerate(taps)) + 128) >> 8))
            for group in range(len(line) // samples) for first, taps in phases]


class DecimateFilter(demo.PanelTest):
    family = "filters/decimate_filter"
    panels = tuple(FRACTIONS)

    def setUp(self):
        self.use_noise(53, 31)

    def test_decimated(self):
        rows = [[self.photo[y * self.width + x][1] for x in range(self.width)] for y in range(self.height)]
        for name, fraction in FRACTIONS.items():
            shorter = [decimated(row, *fraction) for row in rows]
            columns = [decimated(column, *fraction) for column in zip(*shorter)]
            expected = [sample for row in zip(*columns) for sample in row]
            self.assertEqual(list(self.results["decimate_filter-" + name][1]), expected)
