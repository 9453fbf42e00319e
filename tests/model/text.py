"""Texts and values: UTF-8, escaping, the language catalogue, numbers and dates.

Strings are bytes, and floats are their 32-bit patterns, so nothing is lost on the way to the
driver.
"""

import math
import struct

from catalogue import NAMES
from codes import OK, INVALID_UTF8, UNKNOWN_LANGUAGE, UNSUPPORTED_CHARACTER

ENTITIES = {0x22: b"&quot;", 0x26: b"&amp;", 0x27: b"&apos;", 0x3C: b"&lt;", 0x3E: b"&gt;"}


def following_bytes(lead):
    """How many continuation bytes must follow the lead byte; None if it is not one."""
    for first, last, count in (
        (0x00, 0x7F, 0),
        (0xC2, 0xDF, 1),
        (0xE0, 0xEF, 2),
        (0xF0, 0xF7, 3),
        (0xF8, 0xFB, 4),
        (0xFC, 0xFD, 5),
    ):
        if first <= lead <= last:
            return count
    return None


def verify_utf8(text, bmp_only):
    at = 0
    while at < len(text):
        lead = text[at]
        if lead >= 0xF0 and bmp_only:
            return UNSUPPORTED_CHARACTER
        count = following_bytes(lead)
        if count is None:
            return INVALID_UTF8
        tail = text[at + 1 : at + 1 + count]
        if len(tail) < count or any(not 0x80 <= byte <= 0xBF for byte in tail):
            return INVALID_UTF8
        at += 1 + count
    return OK


def is_utf8(text):
    return verify_utf8(text, False) == OK


def count_lines(text):
    if not text or not is_utf8(text):
        return 0
    feeds = text.count(b"\n")
    if feeds == 0:
        return 0
    return feeds if text.endswith(b"\n") else feeds + 1


def strip_unsupported(text):
    return bytes(byte for byte in text if byte > 0x1F or byte == 0x0A)


def tags_to_text(text):
    return b"".join(ENTITIES.get(byte, bytes([byte])) for byte in text)


def candidate_at(text, at):
    """The entity that the bytes after the ampersand select, and the place of the last such byte."""
    selector = text[at + 1 : at + 2]
    if selector == b"a":
        return {b"m": b"&amp;", b"p": b"&apos;"}.get(text[at + 2 : at + 3]), at + 2
    return {b"g": b"&gt;", b"l": b"&lt;", b"q": b"&quot;"}.get(selector), at + 1


def tags_from_text(text):
    characters = {entity: bytes([byte]) for byte, entity in ENTITIES.items()}
    out, at = b"", 0
    while at < len(text):
        if text[at] != 0x26:
            out += text[at : at + 1]
            at += 1
            continue
        entity, selector = candidate_at(text, at)
        if entity and at + len(entity) < len(text) and text.startswith(entity, at):
            out += characters[entity]
            at += len(entity)
        else:
            out += text[at:selector]
            at = selector + 1
    return out


def vertical_alignment(alignment):
    return b"bottom" if alignment & 0x01 else b"top" if alignment & 0x02 else b"center"


def horizontal_alignment(alignment):
    return b"left" if alignment & 0x10 else b"right" if alignment & 0x20 else b"center"


def language_names(language):
    """The English and the native name, or None if the catalogue does not know the language."""
    if len(language) < 2 or (len(language) > 2 and language[2:3] != b"-"):
        return None
    return NAMES.get(language[:2].lower())


def language_key(code):
    """Two spaces and the two bytes as one number; only ASCII letters become lower case."""
    first, second = code.lower()
    return 0x20200000 + first * 256 + second


def is_language(language):
    return OK if language_names(language) else UNKNOWN_LANGUAGE


def float_of(bits):
    return struct.unpack("<f", struct.pack("<I", bits))[0]


def bits_of(value):
    return struct.unpack("<I", struct.pack("<f", value))[0]


def double_of(bits):
    return struct.unpack("<d", struct.pack("<Q", bits))[0]


def general(value, negative):
    """Six significant digits. Like the C library, it writes the sign of a NaN."""
    if math.isnan(value):
        return b"-nan" if negative else b"nan"
    return b"%g" % value


def value_of_float(bits):
    return general(float_of(bits), bits >> 31 != 0)


def value_of_double(bits):
    return general(double_of(bits), bits >> 63 != 0)


def decimal(number):
    return b"%d" % number


def rate(number):
    return b"f%d" % number


def version(number):
    return b"%d.%d.%d" % (number >> 16, number >> 8 & 0xFF, number & 0xFF)


def civil_date(days):
    """Year, month and day, from the days since 1970-01-01."""
    era_day = days + 719468
    era, day_of_era = divmod(era_day, 146097)
    year_of_era = (
        day_of_era - day_of_era // 1460 + day_of_era // 36524 - day_of_era // 146096
    ) // 365
    day_of_year = day_of_era - (365 * year_of_era + year_of_era // 4 - year_of_era // 100)
    month_index = (5 * day_of_year + 2) // 153
    day = day_of_year - (153 * month_index + 2) // 5 + 1
    month = month_index + 3 if month_index < 10 else month_index - 9
    return era * 400 + year_of_era + (1 if month <= 2 else 0), month, day


def broken_down(seconds):
    """Year, month, day, hour, minute, second; None if the year is out of the C library's range."""
    days, rest = divmod(seconds, 86400)
    year, month, day = civil_date(days)
    if not -(2**31) <= year - 1900 < 2**31:
        return None
    return year, month, day, rest // 3600, rest // 60 % 60, rest % 60


def date(seconds, zone):
    """The date text of an instant where clocks are `zone` seconds ahead of UTC."""
    utc, local = broken_down(seconds), broken_down(seconds + zone)
    if utc is None or local is None:
        return b""
    hours = local[3] - utc[3]
    sign = b"+" if hours > 0 else b"-"
    return b"%04d-%02d-%02dT%02d:%02d:%02d" % utc + sign + b"%d:00" % abs(hours)
