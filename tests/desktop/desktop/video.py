"""What FFmpeg's tools say about a video."""

import io
import json
import subprocess
from collections import namedtuple

from PIL import Image

from .server import tool

Facts = namedtuple("Facts", "size frames seconds has_sound")


def facts(path):
    """Sizes, counts and seconds, from decoding the whole video."""
    answer = subprocess.run(
        [tool("ffprobe"), "-v", "error", "-of", "json", "-count_frames", "-show_entries",
         "stream=codec_type,width,height,duration,nb_read_frames", path],
        stdout=subprocess.PIPE, check=True).stdout
    streams = {stream["codec_type"]: stream for stream in json.loads(answer)["streams"]}
    video = streams["video"]
    return Facts((video["width"], video["height"]), int(video["nb_read_frames"]),
                 float(video["duration"]), "audio" in streams)


def frame(path, seconds):
    """The picture shown at that time."""
    data = subprocess.run(
        [tool("ffmpeg"), "-v", "error", "-ss", f"{seconds:.3f}", "-i", path, "-frames:v", "1",
         "-f", "image2pipe", "-c:v", "png", "-"], stdout=subprocess.PIPE, check=True).stdout
    return Image.open(io.BytesIO(data)).convert("RGB")
