# SPDX-License-Identifier: MIT
"""Parts of documents that a tool writes, each between two comments of its name."""


def replaced(text, name, body):
    """The text with another body between <!-- name --> and <!-- /name -->."""
    start, end = f"<!-- {name} -->\n", f"\n<!-- /{name} -->"
    if text.count(start) != 1 or text.count(end) != 1 or text.index(start) > text.index(end):
        raise ValueError(f"one {start.strip()} and one {end.strip()} after it are needed")
    return text[:text.index(start) + len(start)] + "\n" + body.strip() + "\n" + text[text.index(end):]
