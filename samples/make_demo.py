#!/usr/bin/env python3
"""Makes samples/media and samples/demo.otio anew.

Nobody needs this to build, to test or to run anything: both are part of the repository. It is for those
who want to change the demo. It needs Python 3.10, and ffmpeg with x264 for the media.

    samples/make_demo.py            media and timeline
    samples/make_demo.py timeline   the timeline alone

The tables stand in maker/media.py and maker/cut.py.
"""

import json
import os
import sys
from fractions import Fraction

sys.dont_write_bytecode = True

from maker import cut, media, otio  # noqa: E402

FOLDER = os.path.dirname(os.path.abspath(__file__))
SOUND_RATE = 48000


def seconds(frames):
    return Fraction(frames, cut.FRAME_RATE)


def whole(number):
    """Counts are written without a point."""
    return int(number) if number == int(number) else float(number)


def label_metadata(label):
    colors = {**cut.LABELS, **cut.OWN_LABELS}
    if not label or label.startswith("standard:"):
        return {}
    return {"label_color": colors[label], "label_name": label}


def standard_color(label):
    if not label.startswith("standard:"):
        return None
    name = label.removeprefix("standard:")
    channels = [round(int(cut.LABELS[name][i:i + 2], 16) / 255, 4) for i in (1, 3, 5)]
    return otio.color(name, *channels)


def clip_metadata(clip):
    index = label_metadata(clip.label)
    texts = {"description": clip.description, "comment": clip.comment, "tape": clip.tape,
             "source_clip_name": clip.source, "video_info": clip.video_info}
    index |= {key: text for key, text in texts.items() if text}
    if clip.adjustment:
        index["adjustment"] = True
    if clip.camera:
        index["multicam"] = {"is_multicam": True, "camera": clip.camera, "angles": list(cut.CAMERAS)}
    if isinstance(clip.media, cut.Title) and clip.media.fonts[1:]:
        index["fonts"] = list(clip.media.fonts)
    others = {}
    if clip.reel:
        others["cmx_3600"] = {"reel": clip.reel}
        if clip.remarks:
            others["cmx_3600"]["comments"] = list(clip.remarks)
    if clip.link:
        others["link_group"] = clip.link
    return otio.metadata(index, **others)


def effects(clip):
    found = [] if clip.speed == 1 else [otio.time_warp(clip.speed)]
    for effect in clip.effects:
        index = {key: True for key in ("missing", "intrinsic") if getattr(effect, key)}
        others = {"font_name": effect.font} if effect.font else {}
        key = effect.name.lower().replace(" ", "_")
        found.append(otio.effect(index, effect.name, key, effect.enabled, **others))
    return found


def media_metadata(file):
    index = {}
    if "codec" in file.tells:
        index["codec"] = file.codec
    if "fourcc" in file.tells:
        index["fourcc"] = file.fourcc
    if "size" in file.tells:
        index["width"], index["height"] = file.size
        index["pixel_aspect"] = round(float(file.pixel_aspect), 4)
    if file.kind == "still":
        index["still"] = True
    if file.status:
        index["status"] = file.status
    if file.reason:
        index["offline"] = True
        index["offline_reason"] = file.reason
    return index


def available_range(file, is_sound):
    if file.no_range:
        return None
    if is_sound and file.kind == "picture":
        return otio.time_range(0, whole(file.length / file.rate * SOUND_RATE), SOUND_RATE)
    return otio.time_range(0, file.length, file.rate)


def proxy(file):
    path = file.proxy.removeprefix("!")
    index = {"proxy": True, "codec": "H.264", "width": media.PROXY_SIZE[0], "height": media.PROXY_SIZE[1]}
    return otio.external(index, os.path.basename(path), None, otio.url("media/" + path))


def picture_sequence(file):
    folder, name = os.path.split(file.path)
    prefix, suffix = name.split("%04d")
    return otio.image_sequence(media_metadata(file), name.replace("%04d", "####"),
                               available_range(file, False), otio.url("media/" + folder + "/"), prefix,
                               suffix, file.first, file.rate, 4)


def file_references(file, is_sound):
    if file.kind == "pictures":
        return {"DEFAULT_MEDIA": picture_sequence(file)}
    index = {} if is_sound else media_metadata(file)
    address = file.address or otio.url("media/" + file.path)
    name = os.path.basename(file.path)
    references = {
        "DEFAULT_MEDIA": otio.external(index, name, available_range(file, is_sound), address)}
    if file.proxy and not is_sound:
        references["PROXY"] = proxy(file)
    return references


def title_reference(clip):
    parameters = {"text": clip.media.text}
    if not clip.media.fonts[1:]:
        parameters["font"] = clip.media.fonts[0]
    drawn = otio.time_range(0, clip.frames, cut.FRAME_RATE)
    return otio.generator({"graphic": True}, clip.name, drawn, "text", parameters)


def references(clip, is_sound):
    drawn = otio.time_range(0, clip.frames, cut.FRAME_RATE)
    match clip.media:
        case cut.Title():
            return {"DEFAULT_MEDIA": title_reference(clip)}
        case cut.Generator(kind, name, parameters):
            return {"DEFAULT_MEDIA": otio.generator({}, name, drawn, kind, parameters)}
        case cut.Lost(name):
            return {"DEFAULT_MEDIA": otio.missing({}, name, drawn)}
    return file_references(media.MEDIA[clip.media], is_sound)


def source_rate(clip, is_sound):
    """Sound counts samples. Film counts its own frames, other pictures those of the sequence."""
    file = media.MEDIA.get(clip.media) if isinstance(clip.media, str) else None
    if is_sound:
        return file.rate if file.kind == "sound" else Fraction(SOUND_RATE)
    return media.FILM if file and file.rate == media.FILM else Fraction(cut.FRAME_RATE)


def source_range(clip, is_sound):
    rate = source_rate(clip, is_sound)
    start, frames = seconds(clip.start) * rate, seconds(clip.frames) * rate
    if frames.denominator != 1 or start.denominator != 1:
        raise SystemExit(f"{clip.name}: not a whole number of {rate}ths")
    return otio.time_range(int(start), int(frames), rate)


def check_length(clip):
    """Stops when a clip needs more than its media has."""
    file = media.MEDIA[clip.media]
    needed = clip.start + max(clip.frames * abs(clip.speed), 1)
    if file.kind != "still" and seconds(1) * needed > file.length / file.rate:
        raise SystemExit(f"{clip.name} needs {needed} frames of {file.path}")


def item(clip, is_sound):
    if isinstance(clip.media, str):
        check_length(clip)
    rate = cut.FRAME_RATE
    parts = {"effects": effects(clip), "enabled": clip.enabled, "color": standard_color(clip.label),
             "markers": [otio.marker(frame, 1, name, color, comment, rate)
                         for frame, name, color, comment in clip.markers]}
    notes = clip_metadata(clip)
    span = source_range(clip, is_sound)
    if isinstance(clip.media, cut.Nested):
        inner = [track(inner_track) for inner_track in cut.NESTED[clip.media.sequence]]
        return otio.stack(notes, clip.name, span, inner, **parts)
    return otio.clip(notes, clip.name, span, references(clip, is_sound), **parts)


def transition(change):
    index = {"missing": True} if change.missing else {}
    return otio.transition(index, change.name, change.before, change.after, cut.FRAME_RATE, change.kind)


def children(source):
    """A track's items, with the gaps that lead to the next named frame."""
    position = 0
    for entry in source.items:
        match entry:
            case cut.Until(frame):
                if frame <= position:
                    raise SystemExit(f"{source.name}: frame {frame} is past at {position}")
                yield otio.gap(frame - position, cut.FRAME_RATE)
                position = frame
            case cut.Transition():
                yield transition(entry)
            case cut.Clip():
                yield item(entry, source.kind == "Audio")
                position += entry.frames
    if position > cut.LENGTH:
        raise SystemExit(f"{source.name}: ends at {position}")


def track(source):
    index = {key: True for key in ("muted", "locked") if getattr(source, key)}
    return otio.track(otio.metadata(index), source.name, source.kind, list(children(source)),
                      source.enabled)


def timeline():
    rate = cut.FRAME_RATE
    index = {"frame_rate": str(rate), "audio_rate": SOUND_RATE, "drop_frame": False,
             "time_display": "timecode"}
    markers = [otio.marker(*marker, rate) for marker in cut.MARKERS]
    tracks = otio.stack({}, "tracks", None, [track(source) for source in cut.TRACKS], markers=markers)
    return otio.timeline(otio.metadata(index), cut.TITLE, otio.rational(cut.START, rate), tracks)


def main(arguments):
    if arguments != ["timeline"]:
        media.make(os.path.join(FOLDER, "media"))
    text = json.dumps(timeline(), ensure_ascii=False, indent=2)
    with open(os.path.join(FOLDER, "demo.otio"), "w", encoding="utf-8") as file:
        file.write(text + "\n")


if __name__ == "__main__":
    main(sys.argv[1:])
