"""Runs the commands of docs/delivery.md on small videos, and checks what the page says of them.

The environment names ROOT, the project's folder, and PACKET_MAKER, the program that writes packets from
the descriptions in tests/readers. The commands themselves name ExifTool, mkvtoolnix and ffmpeg."""

import functools
import os
import re
import shlex
import shutil
import struct
import tempfile
import unittest
import uuid
from pathlib import Path

from blocks import read_blocks, rows_below, samples_of
from documents import Caption, Document, description_lines
from output import failure, print_objections, run

PAGE = Path(os.environ["ROOT"], "docs", "delivery.md")
SCRIPTS = samples_of(PAGE.stem, read_blocks(PAGE), "sh")
LOSSES = "## What loses the packet"

DECLARATION = b'<?xml version="1.0" encoding="utf-8" ?>'
BEFORE = b"<?xpacket begin='\xef\xbb\xbf' id='W5M0MpCehiHzreSzNTczkc9d'?>\n"
AFTER = b"<?xpacket end='w'?>"
UUID = uuid.UUID(re.search("`([0-9a-f-]{36})`", PAGE.read_text(encoding="utf-8"))[1]).bytes
LARGE_FILES = " -api LargeFileSupport=1"

SHOWN = Document("Intro & Setup", captions=[Caption(1500, 2000, {"en": "Hi", "de": "Hallo"})])
FOREIGN = Document("Überblick 漢字", creator="שלום", keywords=["العربية"], captions=[
    Caption(0, 1500, {"de": "Grüße\nÄÖÜ", "ja": "日本語", "ar": "مرحبا (123)!", "en": "👩‍👩‍👧‍👦 𠀋"})])
LARGE = Document("Large", captions=[
    Caption(index * 1000, 1000, {"en": f"Line {index}. " * 50, "de": f"Größe {index}. " * 50})
    for index in range(1001)])


class Failed(Exception):
    """A command failed or wrote to standard error."""


def execute(*command, folder):
    """Runs a command that must succeed; returns what it prints."""
    result = run([str(word) for word in command], folder)
    if found := failure(result):
        raise Failed(f"{command}: {found}")
    return result.stdout


def execute_script(script, folder):
    return execute("bash", "-e", "-o", "pipefail", "-c", script, folder=folder)


def script_with(words):
    """The only script of the page that contains the words."""
    [script] = [sample.block.text for sample in SCRIPTS if words in sample.block.text]
    return script


def in_format(script, name):
    """The script for MP4, with the files of another format."""
    return script.replace(".mp4", f".{name}")


EMBEDDING = {"mp4": script_with("-XMP<="), "mov": in_format(script_with("-XMP<="), "mov"),
             "mkv": script_with("--add-attachment")}
CHECKS = {"mp4": script_with("cmp - packet"), "mov": in_format(script_with("cmp - packet"), "mov"),
          "mkv": script_with("cmp found")}


def write_sidecar(document, folder):
    """Writes the document as video.xmp; returns its packet, without the declaration."""
    Path(folder, "description").write_text("\n".join(description_lines(document)), encoding="utf-8")
    execute(os.environ["PACKET_MAKER"], "description", "video.xmp", folder=folder)
    sidecar = Path(folder, "video.xmp").read_bytes()
    assert sidecar.startswith(DECLARATION)
    return sidecar.removeprefix(DECLARATION)


def temporary_folder(clean_up):
    folder = tempfile.TemporaryDirectory()
    clean_up(folder.cleanup)
    return Path(folder.name)


@functools.cache
def plain_videos():
    """A folder with a video in each format, one second of pictures and sound, and a packet."""
    folder = temporary_folder(unittest.addModuleCleanup)
    execute("ffmpeg", "-v", "error", "-f", "lavfi", "-i", "testsrc=size=64x48:rate=5:duration=1",
            "-f", "lavfi", "-i", "sine=duration=1", "-c:v", "mpeg4", "-c:a", "aac", "video.mp4",
            folder=folder)
    for other in ("mov", "mkv"):
        execute("ffmpeg", "-v", "error", "-i", "video.mp4", "-c", "copy", f"video.{other}",
                folder=folder)
    (folder / "packet.xmp").write_bytes(write_sidecar(SHOWN, folder))
    return folder


@functools.cache
def delivered_videos():
    """The same videos with the packet inside."""
    folder = temporary_folder(unittest.addModuleCleanup)
    shutil.copytree(plain_videos(), folder, dirs_exist_ok=True)
    for script in EMBEDDING.values():
        execute_script(script, folder)
    return folder


def boxes(data):
    """The types of the boxes of an MP4 or MOV, and their contents."""
    while data:
        size, kind = struct.unpack(">I4s", data[:8])
        yield kind, data[8:size]
        data = data[size:]


def box(data, *path):
    """The content of the only box at this path."""
    for kind in path:
        [data] = [content for other, content in boxes(data) if other == kind]
    return data


def block_in(video):
    """What the video holds where the page says the packet is."""
    data = video.read_bytes()
    if video.suffix == ".mov":
        return box(data, b"moov", b"udta", b"XMP_")
    content = box(data, b"uuid")
    return content.removeprefix(UUID) if content.startswith(UUID) else None


def streams_of(video):
    """The checksums of the video's pictures and sound."""
    return execute("ffmpeg", "-v", "error", "-i", video, "-map", "0:v", "-map", "0:a", "-c", "copy",
                   "-f", "streamhash", "-", folder=video.parent)


class DeliveryTest(unittest.TestCase):
    """Each test has a folder of its own, with the plain videos unless it takes the others."""

    def setUp(self):
        self.packet = (plain_videos() / "packet.xmp").read_bytes()
        self.take(plain_videos())

    def take(self, videos):
        self.folder = temporary_folder(self.addCleanup)
        shutil.copytree(videos, self.folder, dirs_exist_ok=True)

    def video(self, name):
        return self.folder / f"video.{name}"


class Scripts(DeliveryTest):
    """All scripts, in the order of the page."""

    def test_each_script_prints_what_the_page_shows(self):
        self.assertGreater(len(SCRIPTS), 5)
        for sample in SCRIPTS:
            with self.subTest(script=sample.block.text):
                printed = execute_script(sample.block.text, self.folder)
                self.assertEqual(print_objections(sample.outputs, printed), [])

    def assert_delivered(self, document, name):
        """Runs the scripts in which this format appears."""
        self.take(plain_videos())
        packet = write_sidecar(document, self.folder)
        for sample in SCRIPTS:
            script = in_format(sample.block.text, name)
            if f".{name}" in script:
                execute_script(script, self.folder)
        for file in (f"video.{name}", f"copy.{name}"):
            self.assertEqual(block_in(self.folder / file), BEFORE + packet + AFTER)

    def test_mp4_and_mov_hold_every_packet_byte_for_byte(self):
        for document in (FOREIGN, LARGE):
            for name in ("mp4", "mov"):
                with self.subTest(document=document.title, format=name):
                    self.assert_delivered(document, name)

    def test_mkv_holds_every_file_byte_for_byte(self):
        for document in (FOREIGN, LARGE):
            with self.subTest(document=document.title):
                self.take(plain_videos())
                packet = write_sidecar(document, self.folder)
                execute_script(EMBEDDING["mkv"], self.folder)
                execute_script(CHECKS["mkv"], self.folder)
                self.assertIn(DECLARATION + packet, self.video("mkv").read_bytes())

    def test_the_packets_are_large_and_foreign(self):
        large = write_sidecar(LARGE, self.folder)
        self.assertGreater(len(large), 1_000_000)
        self.assertGreater(large.count(b"xmpDM:startTime"), 1000)
        self.assertIn("漢字".encode(), write_sidecar(FOREIGN, self.folder))

    def test_the_checks_notice_a_missing_packet(self):
        for name, check in CHECKS.items():
            with self.subTest(format=name), self.assertRaises(Failed):
                execute_script(check, self.folder)

    def test_the_checks_notice_another_packet(self):
        self.take(delivered_videos())
        (self.folder / "packet.xmp").write_bytes(write_sidecar(FOREIGN, self.folder))
        for name, check in CHECKS.items():
            with self.subTest(format=name), self.assertRaises(Failed):
                execute_script(check, self.folder)


class Embedding(DeliveryTest):
    """What the page says of MP4 and MOV."""

    def setUp(self):
        super().setUp()
        self.take(delivered_videos())

    def test_pictures_and_sound_stay_the_same(self):
        for name in EMBEDDING:
            with self.subTest(format=name):
                streams = streams_of(self.video(name))
                self.assertEqual(streams.count("SHA256="), 2)
                self.assertEqual(streams, streams_of(plain_videos() / f"video.{name}"))

    def test_the_file_as_it_was_before_the_first_change_is_kept(self):
        for name in ("mp4", "mov"):
            with self.subTest(format=name):
                backup = self.folder / f"video.{name}_original"
                plain = (plain_videos() / f"video.{name}").read_bytes()
                self.assertEqual(backup.read_bytes(), plain)
                execute_script(EMBEDDING[name], self.folder)
                self.assertEqual(backup.read_bytes(), plain)

    def test_without_a_backup_none_is_left(self):
        self.assertIn("`-overwrite_original`", PAGE.read_text(encoding="utf-8"))
        for name in ("mp4", "mov"):
            with self.subTest(format=name):
                (self.folder / f"video.{name}_original").unlink()
                execute_script(EMBEDDING[name].replace("exiftool", "exiftool -overwrite_original"),
                               self.folder)
                self.assertFalse((self.folder / f"video.{name}_original").exists())

    def test_a_new_packet_replaces_the_old_one(self):
        packet = write_sidecar(FOREIGN, self.folder)
        for name in ("mp4", "mov"):
            with self.subTest(format=name):
                execute_script(EMBEDDING[name], self.folder)
                self.assertEqual(block_in(self.video(name)), BEFORE + packet + AFTER)
                self.assertNotIn(self.packet, self.video(name).read_bytes())

    def test_a_packet_with_the_declaration_is_refused_with_status_0(self):
        for name in ("mp4", "mov"):
            with self.subTest(format=name):
                before = self.video(name).read_bytes()
                result = run(["exiftool", "-XMP<=video.xmp", f"video.{name}"], self.folder)
                self.assertEqual(result.returncode, 0)
                self.assertEqual(result.stderr, "Warning: Invalid XMP data for XMP:XMP\n")
                self.assertIn("0 image files updated", result.stdout)
                self.assertEqual(self.video(name).read_bytes(), before)

    def test_without_the_word_xmp_the_texts_are_not_copied(self):
        script = script_with(" -tagsFromFile")
        execute_script(script, self.folder)
        self.assertIn(b"Hallo", block_in(self.folder / "copy.mp4"))
        result = run(["bash", "-c", script.replace(" -XMP", "").replace("copy.mp4", "other.mp4")],
                     self.folder)
        self.assertEqual(result.returncode, 0)
        block = block_in(self.folder / "other.mp4")
        self.assertIn(b"xmpDM:startTime", block)
        self.assertNotIn(b"Hallo", block)

    def test_a_large_video_is_refused_without_the_option(self):
        small = self.video("mp4").read_bytes()
        for size in (2**31, 2**32):
            with self.subTest(size=size):
                self.video("mp4").write_bytes(small + struct.pack(">I4sQ", 1, b"mdat", size))
                os.truncate(self.video("mp4"), len(small) + size)  # sparse: takes no space
                self.assertIn(LARGE_FILES, EMBEDDING["mp4"])
                with self.assertRaisesRegex(Failed, "status 1.*LargeFileSupport not enabled"):
                    execute_script(EMBEDDING["mp4"].replace(LARGE_FILES, ""), self.folder)


class Attaching(DeliveryTest):
    """What the page says of MKV."""

    def setUp(self):
        super().setUp()
        self.take(delivered_videos())

    def attachments(self):
        return execute("mkvmerge", "-i", "video.mkv", folder=self.folder).count("Attachment ID")

    def test_exiftool_cannot_write_mkv(self):
        result = run(["exiftool", "-XMP<=packet.xmp", "video.mkv"], self.folder)
        self.assertEqual(result.returncode, 1)
        self.assertIn("Writing of MKV files is not yet supported", result.stderr)

    def test_adding_again_adds_a_second_attachment_in_place(self):
        self.assertEqual(self.attachments(), 1)
        file = self.video("mkv").stat().st_ino
        execute_script(EMBEDDING["mkv"], self.folder)
        self.assertEqual(self.attachments(), 2)
        self.assertEqual(self.video("mkv").stat().st_ino, file)

    def test_replacing_leaves_one_attachment_of_the_same_type(self):
        packet = write_sidecar(FOREIGN, self.folder)
        execute_script(script_with("--replace-attachment"), self.folder)
        self.assertEqual(self.attachments(), 1)
        self.assertIn("'application/rdf+xml'", execute_script(CHECKS["mkv"], self.folder))
        self.assertIn(DECLARATION + packet, self.video("mkv").read_bytes())
        self.assertNotIn(self.packet, self.video("mkv").read_bytes())


class Losses(DeliveryTest):
    """The table of the commands that make a copy of a video."""

    def outcome(self, command):
        """What became of the packet, in the words of the page."""
        self.take(delivered_videos())
        result = run(shlex.split(command), self.folder)
        copies = [path.read_bytes() for path in self.folder.glob("copy.*")]
        if result.returncode != 0:
            self.assertFalse(any(copies))
            return "refused"
        [data] = copies
        if self.packet in data:
            return "kept"
        return "rewritten" if b"x:xmpmeta" in data else "lost"

    def test_each_command_does_what_the_table_says(self):
        rows = rows_below(PAGE.read_text(encoding="utf-8"), LOSSES)
        self.assertGreater(len(rows), 5)
        for command, *outcomes in rows:
            self.assertEqual(len(outcomes), len(EMBEDDING))
            for name, outcome in zip(EMBEDDING, outcomes):
                exact = command.strip("`").replace("VIDEO", f"video.{name}")
                with self.subTest(command=exact):
                    self.assertEqual(self.outcome(exact), outcome)


if __name__ == "__main__":
    unittest.main()
