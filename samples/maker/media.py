"""The media of the demo: what each file shows or sounds like, and how ffmpeg makes it.

Pictures are a still sky, a ground that heaves a little and one thing that moves; sound is a handful of
sines. Both compress to almost nothing.
"""

import json
import os
import subprocess
from dataclasses import dataclass
from fractions import Fraction

PAL = Fraction(25)
FILM = Fraction(24)
NTSC = Fraction(30000, 1001)


@dataclass(frozen=True)
class Scene:
    """Colours from top to bottom, and the height of the horizon as a part of the picture."""

    top: str
    bottom: str
    ground: str
    horizon: float


DAWN = Scene("20304a", "e8b070", "203040", 0.62)
DAY = Scene("5f8fbf", "cfe3ee", "2f5a6e", 0.58)
DUSK = Scene("38284f", "d9684a", "1e2438", 0.64)
NIGHT = Scene("05080f", "1a2436", "0b1018", 0.70)
INDOORS = Scene("3a2c22", "8a6a4c", "2a1e16", 0.75)
FACE = Scene("4a4640", "6d655a", "35302a", 0.80)
ARCHIVE = Scene("6b6457", "a79c86", "4a4438", 0.60)


@dataclass(frozen=True)
class Thing:
    """What moves: colour, size, where it starts and how fast it goes, in parts of the picture."""

    color: str
    width: float
    height: float
    x: float
    y: float
    speed: float


FERRY = Thing("f0ece0", 0.22, 0.08, 0.05, 0.56, 0.03)
BOAT = Thing("803020", 0.10, 0.06, 0.85, 0.60, -0.02)
HEAD = Thing("d8a888", 0.24, 0.50, 0.36, 0.22, 0.004)
HANDS = Thing("c89878", 0.18, 0.16, 0.20, 0.60, 0.02)
GULL = Thing("ffffff", 0.04, 0.03, 0.10, 0.20, 0.09)
LAMP = Thing("ffe9a0", 0.05, 0.10, 0.60, 0.30, 0.0)
ROPE = Thing("c2a882", 0.03, 0.50, 0.40, 0.30, 0.03)


@dataclass(frozen=True)
class Tone:
    """A voice: an expression of the time `t` in seconds, in the words of ffmpeg's aevalsrc."""

    expression: str


SPEECH = Tone("0.2*sin(2*PI*170*t)*max(0,sin(2*PI*2.3*t))*(0.6+0.4*sin(2*PI*0.4*t))")
AIR = Tone("0.05*sin(2*PI*90*t)*(0.7+0.3*sin(2*PI*0.2*t))")
WIND = Tone("0.06*sin(2*PI*140*t+3*sin(2*PI*0.5*t))")
ENGINE = Tone("0.12*sin(2*PI*48*t)+0.06*sin(2*PI*96*t)")
SCORE = Tone("0.10*sin(2*PI*(110+27.5*floor(mod(t/4,4)))*t)")
HORN = Tone("0.25*sin(2*PI*120*t)*min(1,4*t)")
KNOCK = Tone("trunc(14*exp(-6*t)*sin(2*PI*160*t))/64")
BELL = Tone("0.6*exp(-6*t)*sin(2*PI*660*t)")


@dataclass(frozen=True)
class Media:
    """A file below media/, and how long it is: pictures in frames of `rate`, sound in samples."""

    path: str
    length: int
    rate: Fraction = PAL
    scene: Scene | None = None
    thing: Thing | None = None
    size: tuple[int, int] = (320, 180)
    pixel_aspect: Fraction = Fraction(1)
    codec: str = "H.264"
    fourcc: str = "avc1"
    tone: Tone | None = None
    """The sound, or the sound beside the picture."""
    proxy: str = ""
    """Another path below media/; "!" before it: the proxy is lost."""
    tells: str = ""
    """What the timeline says of the file by itself: "codec", "fourcc", "size"."""
    kind: str = "picture"
    first: int = 0
    """Of an image sequence: the number of its first picture."""
    no_range: bool = False
    """The timeline does not say how long it is."""
    lost: bool = False
    """There is no such file."""
    status: str = ""
    reason: str = ""
    address: str = ""
    """An address of its own, for media that lies elsewhere."""


def sound(path, frames, tone, rate=48000):
    """A sound file as long as so many picture frames."""
    return Media(path, frames * rate // 25, Fraction(rate), tone=tone, kind="sound", codec="", fourcc="")


def still(path, scene, thing, **more):
    return Media(path, 1, scene=scene, thing=thing, kind="still", fourcc="", **more)


STATED = "codec fourcc size"

MEDIA = {
    "harbour_dawn": Media("day1/harbour_dawn.mov", 300, scene=DAWN, thing=BOAT, tells=STATED,
                          proxy="proxies/harbour_dawn.mp4"),
    "ferry_pier": Media("day1/ferry_pier.mov", 260, scene=DAWN, thing=FERRY, tone=ENGINE, tells=STATED,
                        proxy="proxies/ferry_pier.mp4"),
    "wheelhouse": Media("day1/wheelhouse.mov", 320, scene=INDOORS, thing=HANDS, tells="codec size"),
    "ada_a": Media("day1/interview_ada_a.mov", 500, scene=FACE, thing=HEAD, tells=STATED,
                   proxy="proxies/interview_ada_a.mp4"),
    "ada_b": Media("day1/interview_ada_b.mov", 500, scene=INDOORS, thing=HEAD, tells=STATED,
                   proxy="proxies/interview_ada_b.mp4"),
    "nils": Media("day2/nils_boatyard.mov", 320, scene=DAY, thing=HEAD, tone=SPEECH, tells="codec"),
    "watashibune": Media("day2/渡し船.mov", 240, scene=DAWN, thing=FERRY, tells=STATED,
                         proxy="!proxies/渡し船.mp4"),
    "crossing_1974": Media("archive/crossing_1974.mp4", 100, scene=ARCHIVE, thing=FERRY,
                           size=(180, 144), pixel_aspect=Fraction(16, 15), tells=STATED),
    "crossing": Media("day2/crossing.mov", 420, scene=DAY, thing=FERRY, tells=STATED,
                      proxy="!proxies/crossing.mp4"),
    "gulls": Media("day2/gulls.mov", 160, scene=DAY, thing=GULL, tells="codec"),
    "baker": Media("day2/baker_24p.mp4", 240, FILM, scene=INDOORS, thing=LAMP, size=(320, 134),
                   tells=STATED),
    "phone": Media("day2/phone_0412.mp4", 120, NTSC, scene=DAY, thing=BOAT, size=(180, 320), tells="size"),
    "akti": Media("day2/ακτή.mov", 120, scene=DAY, thing=BOAT, tells="codec"),
    "clock": Media("day2/clock.mov", 50, scene=DAY, thing=LAMP, tells=STATED),
    "cafe": Media("day2/cafe_quay.mov", 110, scene=DAY, thing=HANDS),
    "rope": Media("day2/rope.mov", 120, scene=DAY, thing=ROPE, tells="codec size"),
    "wake": Media("day2/wake.mov", 300, scene=DUSK, thing=GULL, tells="codec"),
    "quay_feed": Media("live/quay_feed.mov", 80, scene=DAY, thing=BOAT, status="growing"),
    "north": Media("day2/harbour_north.mov", 100, scene=DAWN, thing=GULL, tells="codec"),
    "customs": Media("remote/customs_shed.mov", 90, scene=INDOORS, thing=LAMP, tells="codec",
                     status="pending_connection"),
    "nets": Media("day2/net_mending.mov", 140, scene=INDOORS, thing=HANDS, tells="codec"),
    "reel_9": Media("archive/reel_9_transfer.mov", 40, scene=ARCHIVE, thing=FERRY, size=(128, 72),
                    codec="ProRes 422 Proxy", fourcc="apco", tells="fourcc size",
                    status="pending_relink"),
    "auction": Media("day2/fish_auction.mov", 140, scene=INDOORS, thing=HANDS, tells="codec size"),
    "pilot": Media("day3/pilot_boat.mov", 200, scene=DUSK, thing=BOAT, tells="codec size"),
    "hall": Media("day3/ticket_hall.mov", 150, scene=INDOORS, thing=LAMP),
    "night": Media("day3/harbour_night.mov", 200, scene=NIGHT, thing=LAMP, tells=STATED),
    "last_rope": Media("day3/last_rope.mov", 200, scene=DUSK, thing=ROPE, tells=STATED),
    "storm": Media("archive/storm_1962.mov", 500, size=(720, 576), pixel_aspect=Fraction(16, 15),
                   tells="codec size", lost=True),
    "lighthouse": Media("lighthouse.mov", 400, tells="codec", lost=True,
                        address="file:///Volumes/Harbour%20Archive/reel%2014/lighthouse.mov",
                        reason="Drive \"Harbour Archive\" is not connected"),
    "pier_1931": still("stills/pier_1931.png", ARCHIVE, BOAT, size=(240, 180), codec="PNG",
                       tells="codec size", no_range=True),
    "timetable": still("stills/timetable.jpg", INDOORS, LAMP, size=(240, 160), codec="JPEG",
                       tells="codec"),
    "map": still("stills/harbour_map.tif", DAY, ROPE, size=(160, 120), codec="TIFF", tells="codec size"),
    "chart_north": still("stills/chart north.png", DAY, ROPE, size=(160, 120), codec="PNG", tells="codec"),
    "beacon": Media("stills/beacon/beacon.%04d.png", 12, scene=NIGHT, thing=LAMP, size=(96, 54),
                    codec="PNG", fourcc="", tells="codec size", kind="pictures", first=1001),
    "ada_boom": sound("sound/ada_boom.m4a", 500, SPEECH),
    "harbour_air": sound("sound/harbour_air.m4a", 400, AIR),
    "gulls_wind": sound("sound/gulls_wind.m4a", 400, WIND),
    "engine": sound("sound/engine.m4a", 250, ENGINE),
    "low_tide": sound("sound/low_tide.m4a", 650, SCORE, 44100),
    "sting": sound("sound/harmonium_sting.flac", 25, KNOCK, 44100),
    "scratch": sound("sound/scratch_voice.m4a", 200, SPEECH, 44100),
    "bell": sound("sound/harbour bell #2.wav", 12, BELL),
    "door": sound("sound/door_squeak.flac", 25, KNOCK),
    "splash": sound("sound/splash.flac", 25, KNOCK),
    "horn": sound("sound/ferry_horn.m4a", 75, HORN),
}

PROXY_SIZE = (160, 90)
QUIET = ["ffmpeg", "-v", "error", "-nostdin", "-y"]
EXACT = ["-map_metadata", "-1", "-fflags", "+bitexact", "-flags:v", "+bitexact", "-flags:a", "+bitexact"]
# One thread, since more would cut the picture differently on other machines; without the message that
# names the encoder and its settings.
H264 = ["-c:v", "libx264", "-preset", "veryslow", "-crf", "36", "-bf", "0", "-pix_fmt", "yuv420p",
        "-x264-params", "threads=1:keyint=9999", "-bsf:v", "filter_units=remove_types=6"]
PRORES = ["-c:v", "prores_ks", "-profile:v", "proxy", "-pix_fmt", "yuv422p10le", "-vendor", "apl0"]
AAC = ["-c:a", "aac", "-b:a", "6k", "-ac", "1"]
PICTURE_CODECS = {
    ".png": ["-c:v", "png", "-pix_fmt", "rgb24"],
    ".jpg": ["-c:v", "mjpeg", "-q:v", "12", "-pix_fmt", "yuvj420p"],
    ".tif": ["-c:v", "tiff", "-compression_algo", "deflate", "-pix_fmt", "rgb24"],
}
SOUND_CODECS = {
    ".m4a": AAC,
    ".flac": ["-c:a", "flac", "-compression_level", "12", "-sample_fmt", "s16"],
    ".wav": ["-c:a", "pcm_u8"],
}


def extension(path):
    return os.path.splitext(path)[1]


def draw(media, size):
    """Sources and filter graph of the picture."""
    width, height = size
    scene, thing = media.scene, media.thing
    sky = (f"gradients=s={width}x{height}:c0=0x{scene.top}:c1=0x{scene.bottom}:n=2:x0=0:y0=0:x1=0"
           f":y1={height}:seed=1:speed=0.00001:r={media.rate}")
    ground = f"color=c=0x{scene.ground}:s={width}x{height}:r={media.rate}"
    shape = (f"color=c=0x{thing.color}:s={max(2, int(width * thing.width))}"
             f"x{max(2, int(height * thing.height))}:r={media.rate}")
    sources = [part for source in (sky, ground, shape) for part in ("-f", "lavfi", "-i", source)]
    heave = f"{int(height * scene.horizon)}+2*sin(t)"
    drift = f"{int(width * thing.x)}+{width * thing.speed:.2f}*t"
    graph = (f"[0][1]overlay=0:{heave}[ground];[ground][2]overlay={drift}:{int(height * thing.y)},"
             f"setsar={media.pixel_aspect.numerator}/{media.pixel_aspect.denominator},"
             f"trim=end_frame={media.length}[picture]")
    return sources, ["-filter_complex", graph, "-map", "[picture]"]


def tone_source(tone, rate, seconds):
    return ["-f", "lavfi", "-i", f"aevalsrc='{tone.expression}':s={rate}:d={seconds}"]


def film_command(media, target, size, with_sound):
    sources, picture = draw(media, size)
    codec = PRORES if media.fourcc == "apco" else H264
    voice = []
    if with_sound:
        sources += tone_source(media.tone, 48000, float(media.length / media.rate))
        voice = ["-map", "3", *AAC]
    return [*QUIET, *sources, *picture, *codec, *voice, *EXACT, target]


def pictures_command(media, target):
    sources, picture = draw(media, media.size)
    numbers = ["-start_number", str(media.first)] if media.kind == "pictures" else ["-update", "1"]
    codec = PICTURE_CODECS[extension(media.path)]
    return [*QUIET, *sources, *picture, *codec, *EXACT, "-f", "image2", *numbers, target]


def sound_command(media, target):
    source = tone_source(media.tone, media.rate, float(media.length / media.rate))
    return [*QUIET, *source, *SOUND_CODECS[extension(media.path)], *EXACT, target]


def commands(media, folder):
    """What makes the file, and its proxy: (path, command)."""
    target = os.path.join(folder, media.path)
    if media.kind == "sound":
        return [(target, sound_command(media, target))]
    if media.kind != "picture":
        return [(target, pictures_command(media, target))]
    found = [(target, film_command(media, target, media.size, media.tone is not None))]
    if media.proxy and not media.proxy.startswith("!"):
        proxy = os.path.join(folder, media.proxy)
        found.append((proxy, film_command(media, proxy, PROXY_SIZE, False)))
    return found


def measure(path, stream):
    """Rate and number of frames or samples of a file's first picture or sound stream."""
    fields = "stream=r_frame_rate,sample_rate,nb_read_packets,duration_ts,time_base"
    answer = subprocess.run(
        ["ffprobe", "-v", "error", "-count_packets", "-select_streams", stream, "-show_entries", fields,
         "-of", "json", path], check=True, capture_output=True)
    found = json.loads(answer.stdout)["streams"][0]
    if stream == "v:0":
        return Fraction(found["r_frame_rate"]), Fraction(int(found["nb_read_packets"]))
    rate = Fraction(int(found["sample_rate"]))
    return rate, found["duration_ts"] * Fraction(found["time_base"]) * rate


def check_length(media, path):
    """Stops when a file is not as long as the table says."""
    streams = {"v:0": (media.rate, media.length)} if media.kind == "picture" else {}
    if media.tone:
        rate = media.rate if media.kind == "sound" else Fraction(48000)
        streams["a:0"] = (rate, media.length / media.rate * rate)
    for stream, wanted in streams.items():
        found = measure(path, stream)
        if found != wanted:
            raise SystemExit(f"{path}: {stream} is {found}, not {wanted}")


def make(folder):
    for media in MEDIA.values():
        if media.lost:
            continue
        for path, command in commands(media, folder):
            os.makedirs(os.path.dirname(path), exist_ok=True)
            subprocess.run(command, check=True)
        check_length(media, os.path.join(folder, media.path))
