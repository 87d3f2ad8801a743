"""Reads a version resource: a tree of blocks, each with a name, a value and blocks below it."""

import struct

SIGNATURE = 0xFEEF04BD


def padded(offset):
    return offset + 3 & ~3


def read_block(data, start):
    """Returns (end, name, value as bytes, offset of the first block below)."""
    length, value_length, is_text = struct.unpack_from("<HHH", data, start)
    if length < 6 or start + length > len(data):
        raise ValueError("the version resource is damaged")
    name_end = start + 6
    while data[name_end:name_end + 2] != b"\0\0":
        name_end += 2
    name = data[start + 6:name_end].decode("utf-16-le")
    value = padded(name_end + 2)
    value_end = min(value + value_length * (2 if is_text else 1), start + length)
    return start + length, name, data[value:value_end], padded(value_end)


def strings_below(data, at, end):
    """The texts of the string tables between the two offsets, by name."""
    result = {}
    while at < end:
        block_end, name, value, below = read_block(data, at)
        if below < block_end:
            result.update(strings_below(data, below, block_end))
        else:
            result[name] = value.decode("utf-16-le").rstrip("\0")
        at = padded(block_end)
    return result


def read(data):
    """Returns the file version as four numbers, and the texts by name."""
    end, name, fixed, below = read_block(data, 0)
    if name != "VS_VERSION_INFO" or struct.unpack_from("<I", fixed)[0] != SIGNATURE:
        raise ValueError("the version resource is damaged")
    high, low = struct.unpack_from("<II", fixed, 8)
    version = (high >> 16, high & 0xFFFF, low >> 16, low & 0xFFFF)
    return version, strings_below(data, below, end)
