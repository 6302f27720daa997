"""Tests cvxctl snapshot and cvxctl record. Other programs read the files.

usage: images_test.py BUILD
"""

import csv
import datetime
import json
import os
import re
import select
import shutil
import signal
import struct
import subprocess
import time
import unittest
import zlib

from cvxctl_case import LIMIT, CvxctlCase

WIDTH, HEIGHT = 320, 240


def png(path):
    """Returns size, depth, channels and the values of the chunk sBIT, after checking that the pixels are complete."""
    with open(path, "rb") as file:
        data = file.read()
    assert data[:8] == b"\x89PNG\r\n\x1a\n"
    width, height, depth, color = struct.unpack(">IIBB", data[16:26])
    channels = {0: 1, 2: 3}[color]
    position, packed, significant = 8, b"", ()
    while position < len(data):
        length, kind = struct.unpack(">I4s", data[position:position + 8])
        content = data[position + 8:position + 8 + length]
        assert struct.unpack(">I", data[position + 8 + length:position + 12 + length])[0] == zlib.crc32(kind + content)
        packed += content if kind == b"IDAT" else b""
        significant = tuple(content) if kind == b"sBIT" else significant
        position += length + 12
    assert len(zlib.decompress(packed)) == height * (1 + channels * width * depth // 8)
    return (width, height), depth, channels, significant


def tiff_directories(path):
    """Returns the tags of each image of a BigTIFF file, after checking that its pixels are in the file."""
    size, directories = os.path.getsize(path), []
    with open(path, "rb") as file:
        def read(form, position):
            file.seek(position)
            return struct.unpack("<" + form, file.read(struct.calcsize("<" + form)))
        mark, version, _, _, position = read("2sHHHQ", 0)
        assert (mark, version) == (b"II", 43)
        while position:
            count, tags = read("Q", position)[0], {}
            for index in range(count):
                tag, kind, length, value = read("HHQQ", position + 8 + 20 * index)
                if kind == 2 and length > 8:
                    file.seek(value)
                    value = file.read(length - 1).decode()
                tags[tag] = value
            assert tags[273] + tags[279] <= size
            directories.append(tags)
            position, = read("Q", position + 8 + 20 * count)
    return directories


def write_flat_field(path, black_level):
    """Writes a flat field that makes every pixel `black_level`, with a description as other programs could write it."""
    text = json.dumps({"format": "corvix-x-flat-field", "version": 1, "width": WIDTH, "height": HEIGHT, "depth": 8,
                       "blackLevel": black_level, "offsetX": 0, "offsetY": 0}).encode() + b"\0"
    size = 4 * WIDTH * HEIGHT
    tags = [(256, 4, 1, WIDTH), (257, 4, 1, HEIGHT), (258, 3, 1, 32), (259, 3, 1, 1), (262, 3, 1, 1),
            (270, 2, len(text), 8), None, (277, 3, 1, 1), (278, 4, 1, HEIGHT), (279, 4, 1, size), (339, 3, 1, 3)]
    pixels = 8 + len(text) + len(text) % 2
    directory = pixels + size
    following = directory + 6 + 12 * len(tags)
    with open(path, "wb") as file:
        file.write(struct.pack("<2sHI", b"II", 42, directory) + text.ljust(pixels - 8, b"\0") + bytes(size))
        for end in following, 0:  # Offset and gain, which are both 0 and share their pixels.
            tags[6] = (273, 4, 1, pixels)
            file.write(struct.pack("<H", len(tags)) + b"".join(struct.pack("<HHII", *tag) for tag in tags))
            file.write(struct.pack("<I", end))
        file.write(bytes(size))  # The file has the size of one with pixels for both.


def tool(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, check=True, text=True, timeout=LIMIT).stdout


class ImagesTest(CvxctlCase):
    def setUp(self):
        self.folder = f"{self.root}/{self.id()}"
        os.mkdir(self.folder)

    def path(self, name):
        return f"{self.folder}/{name}"

    def load(self, name):
        with open(self.path(name), encoding="utf-8") as file:
            return json.load(file)

    def test_snapshot(self):
        for name, arguments, expected in (("a.png", ["1001"], ((WIDTH, HEIGHT), 8, 1, ())),
                                          ("b.png", ["1002"], ((WIDTH, HEIGHT), 8, 3, ())),
                                          ("c.png", ["1001", "--format", "png16", "--set", "PixelFormat=Mono12p"],
                                           ((WIDTH, HEIGHT), 16, 1, (12,))),
                                          ("d.png", ["1002", "--format=png16", "--set=PixelFormat=BayerRG10"],
                                           ((WIDTH, HEIGHT), 16, 3, (10, 10, 10)))):
            self.run_well("snapshot", arguments[0], self.path(name), *arguments[1:])
            self.assertEqual(png(self.path(name)), expected)
        self.run_well("snapshot", "1002", self.path("e.tiff"), "--set", "PixelFormat=BayerRG12Packed")
        self.assertEqual(tool("identify", "-format", "%z %wx%h %[colorspace]", self.path("e.tiff")), "16 320x240 Gray")
        self.assertIn("Max Sample Value: 4095", tool("tiffinfo", self.path("e.tiff")))
        taken = self.run_json("snapshot", "1001", self.path("f.raw"))
        size = WIDTH * HEIGHT
        self.assertEqual((taken["width"], taken["bytes"], os.path.getsize(self.path("f.raw"))), (WIDTH, size, size))

    def test_sidecar_contains_the_settings_in_the_order_of_their_writing(self):
        self.run_well("snapshot", "1001", self.path("a.png"), "--set", "Width=64", "--set", "OffsetX=256", "--set",
                      "ExposureTime=1500")
        sidecar = self.load("a.png.json")
        self.assertEqual([sidecar["settings"][name] for name in ("Width", "OffsetX", "ExposureTime")], [64, 256, 1500.0])
        self.assertEqual([sidecar["image"][name] for name in ("width", "offsetX", "pixelFormatName", "isComplete")],
                         [64, 256, "Mono8", True])
        self.assertEqual(sidecar["camera"], {"id": "CorvixCameraSimulator.cti/Sim/SIM-1001", "vendor": "Orvelle",
                                             "model": "Kx200 5MP-M", "serialNumber": "1001", "userName": "Left"})
        # Written first, the offset is beyond its limit.
        self.assertIn("OffsetX", self.run_failing(7, "snapshot", "1001", self.path("b.png"), "--set", "OffsetX=256",
                                                  "--set", "Width=64")[1])
        self.assertFalse(os.path.exists(self.path("b.png")))

    def test_several_snapshots(self):
        taken = self.run_json("snapshot", "1001", self.path("a.raw"), "--count", "3", "--interval", "0.2")
        self.assertEqual([os.path.basename(image["file"]) for image in taken],
                         ["a-0001.raw", "a-0002.raw", "a-0003.raw"])
        times = [datetime.datetime.fromisoformat(image["time"].rstrip("Z")) for image in taken]
        for count in 1, 2:
            self.assertGreater((times[count] - times[0]).total_seconds(), 0.199 * count)
        self.assertEqual(len(os.listdir(self.folder)), 6)  # With the sidecars; no temporary file is left.

    def test_snapshot_that_cannot_be_saved(self):
        self.assertIn("create the folder first", self.run_failing(1, "snapshot", "1001", self.path("no/a.png"))[1])
        for arguments in (("--format", "jpeg"), ("--set", "Width"), ("--count", "0")):
            self.run_failing(2, "snapshot", "1001", self.path("a.png"), *arguments)

    def pixels(self, name):
        output = subprocess.run(["convert", self.path(name), "-depth", "8", "gray:-"], stdout=subprocess.PIPE, check=True,
                                timeout=LIMIT).stdout
        return [output[start:start + WIDTH] for start in range(0, WIDTH * HEIGHT, WIDTH)]

    def write(self, name, text):
        with open(self.path(name), "w", encoding="utf-8") as file:
            file.write(text)
        return self.path(name)

    def test_corrections(self):
        columns = self.write("columns.csv", "x,y\n" + "".join(f"100,{y}\n" for y in range(HEIGHT)))
        write_flat_field(self.path("flat.tif"), 77)
        self.run_well("snapshot", "1001", self.path("a.tif"), "--correct", columns, "--set", "TestPattern=Off")
        pixels = self.pixels("a.tif")
        for y in range(1, HEIGHT - 1):
            around = sorted(pixels[row][column] for row in (y - 1, y, y + 1) for column in (99, 101))
            self.assertEqual(pixels[y][100], (around[2] + around[3] + 1) // 2)
        self.run_well("snapshot", "1001", self.path("a.png"), "--correct", columns, "--correct", self.path("flat.tif"))
        self.assertEqual(set(b"".join(self.pixels("a.png"))), {77})
        self.assertEqual([entry["file"] for entry in self.load("a.png.json")["corrections"]],
                         [columns, self.path("flat.tif")])
        self.run_well("record", "1001", self.path("b.tif"), "--frames", "2", "--correct", self.path("flat.tif"))
        self.assertEqual(set(b"".join(self.pixels("b.tif[1]"))), {77})
        self.assertEqual(self.load("b.tif.json")["corrections"][0]["format"], "corvix-x-flat-field")

    def test_corrections_that_cannot_be_used(self):
        write_flat_field(self.path("flat.tif"), 77)
        other = self.write("other.json", json.dumps({
            "format": "corvix-x-defect-map", "version": 1, "width": WIDTH, "height": HEIGHT, "pixels": [],
            "camera": {"serialNumber": "1002"}, "settings": {"ReverseX": False}}))
        own = self.write("own.json", json.dumps({
            "format": "corvix-x-defect-map", "version": 1, "width": WIDTH, "height": HEIGHT, "pixels": [],
            "camera": {"serialNumber": "1001"}, "settings": {"ReverseX": False}}))
        for command in "snapshot", "record":
            for status, target, expected, arguments in (
                    (2, "a.raw", "--correct cannot be used", ("--correct", self.path("flat.tif"))),
                    (1, "a.tif", "No such file", ("--correct", self.path("missing"))),
                    (1, "a.tif", "contains no defect map", ("--correct", self.write("text", "nothing"))),
                    (1, "a.tif", "the camera 1002, but this camera is 1001", ("--correct", other)),
                    (1, "a.tif", "ReverseX = true", ("--correct", own, "--set", "ReverseX=1"))):
                self.assertIn(expected, self.run_failing(status, command, "1001", self.path(target), *arguments)[1])
                self.assertFalse(os.path.exists(self.path(target)))
            arguments = ("--correct", self.path("flat.tif"), "--set", "PixelFormat=RGB8")
            messages = self.run_failing(1, command, "1002", self.path("a.tif"), *arguments)[1]
            self.assertIn("RGB8 does not have; set PixelFormat", messages)
            self.assertFalse(os.path.exists(self.path("a.tif")))

    def test_record_tiff(self):
        counters = self.run_json("record", "1001", self.path("a.tif"), "--frames", "20", "--set",
                                 "PixelFormat=Mono12p")
        self.assertEqual([counters[name] for name in ("images", "lost", "incomplete", "underruns", "unwritten")],
                         [20, 0, 0, 0, 0])
        images = [json.loads(tags[270]) for tags in tiff_directories(self.path("a.tif"))]
        self.assertEqual([image["frameId"] - images[0]["frameId"] for image in images], list(range(20)))
        self.assertEqual(sorted(image["timestamp"] for image in images), [image["timestamp"] for image in images])
        self.assertEqual(tool("tiffinfo", self.path("a.tif")).count("Bits/Sample: 16"), 20)
        self.assertEqual(self.load("a.tif.json")["recording"]["images"], 20)

    def test_record_raw(self):
        output = self.run_well("record", "1002", self.path("a.raw"), "--frames", "5")
        with open(self.path("a.raw.csv"), encoding="utf-8", newline="") as file:
            rows = list(csv.DictReader(file))
        self.assertTrue(output.startswith("5 images, "), output)
        self.assertEqual(len(rows), 5)
        size = WIDTH * HEIGHT
        self.assertEqual([(int(row["offset"]), int(row["size"]), row["isComplete"]) for row in rows],
                         [(index * size, size, "1") for index in range(len(rows))])
        self.assertEqual(os.path.getsize(self.path("a.raw")), len(rows) * size)

    def test_losses_are_shown_and_change_the_exit_status(self):
        os.mkfifo(self.path("pipe"))
        pipe = os.open(self.path("pipe"), os.O_RDWR | os.O_NONBLOCK)  # Nobody reads, so the images stay in the buffers.
        self.addCleanup(os.close, pipe)
        terminal, inner = os.openpty()
        self.addCleanup(os.close, terminal)
        process = self.start("record", "1001", self.path("pipe"), "--buffers", "2", stderr=inner)
        os.close(inner)

        def read_until(pattern):
            printed = ""
            while not re.search(pattern, printed):
                self.assertTrue(select.select([terminal], [], [], LIMIT)[0], printed)
                printed += os.read(terminal, 4096).decode()

        read_until(r"[1-9]\d* underruns")
        process.send_signal(signal.SIGINT)
        end = time.monotonic() + LIMIT
        while process.poll() is None:
            self.assertLess(time.monotonic(), end)
            if select.select([pipe], [], [], 0.1)[0]:
                os.read(pipe, 1 << 16)
        read_until(r"the recording has gaps: .*\d underruns .*--buffers")
        self.assertEqual(process.returncode, 8)
        process.communicate(timeout=LIMIT)

    def test_recording_without_images(self):
        self.assertIn("TriggerMode", self.run_failing(6, "record", "1001", self.path("a.raw"), "--seconds", "0.2", "--set",
                                                      "TriggerMode=On")[1])

    def start_recording(self, name, *arguments):
        """Starts a recording and returns its process as soon as the file contains some images."""
        process = self.start("record", "1001", self.path(name), *arguments)
        end = time.monotonic() + LIMIT
        while not (os.path.exists(self.path(name)) and os.path.getsize(self.path(name)) > 5 * WIDTH * HEIGHT):
            self.assertIsNone(process.poll(), "the recording has ended")
            self.assertLess(time.monotonic(), end, "no images arrive")
        return process

    def test_interrupted_recording(self):
        for arguments, status in (((), 0), (("--seconds", "200"), 130)):
            process = self.start_recording("a.tif", *arguments)
            process.send_signal(signal.SIGINT)
            _, messages = process.communicate(timeout=LIMIT)
            self.assertEqual((process.returncode, messages), (status, ""))
            self.assertEqual(len(tiff_directories(self.path("a.tif"))), self.load("a.tif.json")["recording"]["images"])
            os.remove(self.path("a.tif"))

    def test_recording_ends_at_the_limit_of_the_file_size(self):
        command = f"ulimit -f 5000; exec {self.root}/bin/cvxctl record 1001 {self.path('a.tif')}"
        result = subprocess.run(["bash", "-c", command], env=self.environment, stderr=subprocess.PIPE, text=True,
                                timeout=LIMIT, check=False)
        self.assertEqual(result.returncode, 1)
        self.assertIn("ulimit -f", result.stderr)
        self.assertGreater(len(tiff_directories(self.path("a.tif"))), 0)

    def test_killed_recording_stays_readable(self):
        process = self.start_recording("a.tif")
        process.kill()
        process.communicate(timeout=LIMIT)
        self.assertGreaterEqual(len(tiff_directories(self.path("a.tif"))), 4)  # The fifth may be unfinished.
        self.assertIsNone(self.load("a.tif.json")["recording"]["ended"])

    def test_recording_that_does_not_fit(self):
        space = shutil.disk_usage(self.folder).free
        _, messages = self.run_failing(1, "record", "1001", self.path("a.raw"), "--frames",
                                       str(2 * space // (WIDTH * HEIGHT)))
        self.assertIn("record less", messages)
        self.assertEqual(os.listdir(self.folder), [])

    def run_on_small_disk(self, options, command):
        """Runs a shell command whose folder is a small file system, which is copied to self.folder afterwards."""
        script = (f"mkdir {self.root}/disk; mount -t tmpfs -o {options} none {self.root}/disk && cd {self.root}/disk && "
                  f"({command}); status=$?; cp * {self.folder} 2>/dev/null; exit $status")
        for permission in ([], ["--user", "--map-root-user"]):
            if subprocess.run(["unshare", "--mount", *permission, "true"], stderr=subprocess.DEVNULL, check=False,
                              timeout=LIMIT).returncode == 0:
                return subprocess.run(["unshare", "--mount", *permission, "sh", "-c", script], env=self.environment,
                                      stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False, timeout=LIMIT)
        self.skipTest("this system permits no mount namespace")
        return None

    def test_full_disk_ends_the_recording(self):
        ended = self.run_on_small_disk("size=2m", f"{self.root}/bin/cvxctl record 1001 a.tif")
        self.assertEqual(ended.returncode, 1, ended.stderr)
        self.assertIn("the disk is almost full", ended.stderr)
        images = self.load("a.tif.json")["recording"]["images"]
        self.assertGreater(images, 20)
        self.assertEqual(len(tiff_directories(self.path("a.tif"))), images)

    def test_read_only_disk(self):
        for command in "snapshot", "record":
            ended = self.run_on_small_disk("ro", f"{self.root}/bin/cvxctl {command} 1001 a.raw")
            self.assertEqual(ended.returncode, 1, ended.stderr)
            self.assertIn("choose a folder that can be written", ended.stderr)


unittest.main()
