# SPDX-License-Identifier: MIT
"""PNG pictures of 8-bit samples, as far as the tests need them: written plainly, read with all row filters."""
import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"
KINDS = {1: 0, 3: 2, 4: 6}  # channels and the format's number for them


def _chunk(name, data):
    return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))


def header(width, height, channels):
    return _chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, KINDS[channels], 0, 0, 0))


def encode(width, height, channels, samples):
    row = width * channels
    lines = b"".join(b"\0" + samples[y * row:(y + 1) * row] for y in range(height))
    return SIGNATURE + header(width, height, channels) + _chunk(b"IDAT", zlib.compress(lines)) + _chunk(b"IEND", b"")


def _nearest(a, b, c):
    """The neighbour (left, above, above left) next to a + b - c."""
    return min((a, b, c), key=lambda value: abs(a + b - c - value))


def decode(data, rows=None):
    """Returns width, height, channels, samples; only those of the first rows where a number is given."""
    assert data[:8] == SIGNATURE, "not a PNG picture"
    at, packed = 8, b""
    while at < len(data):
        length, name = struct.unpack(">I4s", data[at:at + 8])
        body = data[at + 8:at + 8 + length]
        if name == b"IHDR":
            width, height, bits, kind = struct.unpack(">IIBB", body[:10])
            assert bits == 8
            channels = {number: count for count, number in KINDS.items()}[kind]
        elif name == b"IDAT":
            packed += body
        at += 12 + length
    lines, row = zlib.decompress(packed), width * channels
    above, samples = bytearray(row), bytearray()
    for y in range(height if rows is None else rows):
        kind, line = lines[y * (row + 1)], bytearray(lines[y * (row + 1) + 1:(y + 1) * (row + 1)])
        for x in range(row):
            left, corner = (line[x - channels], above[x - channels]) if x >= channels else (0, 0)
            line[x] = (line[x] + (0, left, above[x], (left + above[x]) // 2,
                                  _nearest(left, above[x], corner))[kind]) & 255
        samples += line
        above = line
    return width, height, channels, bytes(samples)
