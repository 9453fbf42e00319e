"""Prints the table of zone_dates.inc: time zones, instants and the dates that are to be written.

Usage: make_zone_dates.py > zone_dates.inc

Hours come from Python's own reader of the time zone database. Instants are in the past and not from
the early years of a zone, so that a later release of the database does not change them."""

from datetime import datetime, timezone
from zoneinfo import ZoneInfo

# Zones, and moments in UTC. Where clocks change, the second before and the second of the change.
PAIRS = {
    "UTC": ["1970-01-01T00:00:00", "2000-02-29T23:59:59", "2038-01-19T03:14:08"],
    "Etc/GMT+12": ["2009-03-05T01:00:00", "9999-12-31T23:59:59"],
    "Etc/GMT-14": ["2009-03-05T14:07:09"],
    "Europe/London": ["1969-07-20T20:17:40", "2020-03-29T00:59:59", "2020-03-29T01:00:00"],
    "Europe/Lisbon": ["1993-06-01T12:00:00", "2023-06-01T12:00:00"],
    "Europe/Berlin": ["2020-10-25T00:59:59", "2020-10-25T01:00:00", "2009-03-05T23:30:00"],
    "Europe/Athens": ["2021-07-01T21:00:00"],
    "Europe/Moscow": ["2012-01-01T12:00:00", "2015-01-01T12:00:00"],
    "Europe/Istanbul": ["2015-01-01T12:00:00", "2017-01-01T12:00:00"],
    "Atlantic/Azores": ["2022-01-15T00:30:00"],
    "Atlantic/Cape_Verde": ["2022-01-15T00:30:00"],
    "Africa/Casablanca": ["2019-06-01T12:00:00", "2019-05-20T12:00:00"],
    "Africa/Lagos": ["2019-06-01T12:00:00"],
    "Africa/Monrovia": ["1971-06-01T12:00:00", "1973-06-01T12:00:00"],
    "America/New_York": ["1945-08-14T23:00:00", "2007-03-11T06:59:59", "2007-03-11T07:00:00"],
    "America/St_Johns": ["2010-01-10T12:15:00", "2010-01-10T12:45:00", "2010-07-10T02:00:00"],
    "America/Caracas": ["2010-01-10T12:15:00", "2018-01-10T12:15:00"],
    "America/Los_Angeles": ["2023-11-05T08:59:59", "2023-11-05T09:00:00", "2009-03-05T05:00:00"],
    "America/Sao_Paulo": ["2018-12-31T12:00:00", "2022-12-31T12:00:00"],
    "America/Phoenix": ["2018-07-01T12:00:00"],
    "Asia/Tehran": ["2021-07-01T12:00:00", "2021-12-01T12:00:00"],
    "Asia/Kabul": ["2021-12-01T12:29:59", "2021-12-01T12:30:00"],
    "Asia/Kolkata": ["2009-03-05T14:07:09", "2009-03-05T14:45:00", "2009-03-05T18:29:59"],
    "Asia/Kathmandu": ["1985-12-31T18:29:59", "1986-01-01T12:00:00", "2009-03-05T14:20:00"],
    "Asia/Pyongyang": ["2016-01-01T12:15:00", "2019-01-01T12:15:00"],
    "Asia/Shanghai": ["1988-07-01T12:00:00", "1998-07-01T12:00:00"],
    "Asia/Tokyo": ["2011-03-11T05:46:23"],
    "Australia/Adelaide": ["2016-01-01T12:00:00", "2016-07-01T12:00:00"],
    "Australia/Eucla": ["2016-07-01T12:00:00", "2016-07-01T12:20:00"],
    "Australia/Lord_Howe": ["2016-01-01T12:00:00", "2016-07-01T12:00:00"],
    "Antarctica/Troll": ["2016-01-01T12:00:00", "2016-07-01T12:00:00"],
    "Pacific/Auckland": ["2012-01-01T11:00:00", "2012-07-01T12:00:00"],
    "Pacific/Chatham": ["2012-01-01T10:14:59", "2012-01-01T10:15:00", "2012-07-01T11:15:00"],
    "Pacific/Apia": ["2011-12-30T09:59:59", "2011-12-30T10:00:00"],
    "Pacific/Kiritimati": ["1994-12-01T12:00:00", "1996-01-01T12:00:00"],
    "Pacific/Marquesas": ["2012-07-01T12:15:00", "2012-07-01T12:45:00"],
}


def line(zone, moment):
    utc = datetime.fromisoformat(moment).replace(tzinfo=timezone.utc)
    hours = utc.astimezone(ZoneInfo(zone)).hour - utc.hour
    sign = "+" if hours > 0 else "-"
    return f'{{"{zone}", {int(utc.timestamp())}, "{moment}{sign}{abs(hours)}:00"}},'


for name, moments in PAIRS.items():
    for instant in moments:
        print(line(name, instant))
