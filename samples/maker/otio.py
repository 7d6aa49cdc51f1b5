"""OpenTimelineIO objects as dictionaries, their members in the order in which the format's own library
writes them."""

from urllib.parse import quote


def schema(schema_name, /, **members):
    return {"OTIO_SCHEMA": schema_name, **members}


def rational(value, rate):
    return schema("RationalTime.1", rate=float(rate), value=value)


def time_range(start, duration, rate):
    return schema("TimeRange.1", start_time=rational(start, rate), duration=rational(duration, rate))


def metadata(index, **others):
    """Ours first; nothing at all when there is nothing to say."""
    return {**({"sequence_index": index} if index else {}), **others}


def url(path):
    """Letters of every script stay readable; what has a meaning in an address is escaped."""
    return "".join(c if ord(c) > 127 else quote(c, safe="/:") for c in path)


def item(name_of_schema, notes, name, source_range, *, effects=(), markers=(), enabled=True, color=None,
         **more):
    return schema(name_of_schema, metadata=notes, name=name, source_range=source_range,
                  effects=list(effects), markers=list(markers), enabled=enabled, color=color, **more)


def gap(frames, rate):
    return item("Gap.1", {}, "", time_range(0, frames, rate))


def clip(notes, name, source_range, references, **more):
    return item("Clip.2", notes, name, source_range, **more, media_references=references,
                active_media_reference_key="DEFAULT_MEDIA")


def stack(notes, name, source_range, children, **more):
    return item("Stack.1", notes, name, source_range, **more, children=children)


def track(notes, name, kind, children, enabled=True):
    return item("Track.1", notes, name, None, enabled=enabled, children=children, kind=kind)


def transition(index, name, in_offset, out_offset, rate, kind):
    return schema("Transition.1", metadata=metadata(index), name=name,
                  in_offset=rational(in_offset, rate), out_offset=rational(out_offset, rate),
                  transition_type=kind)


def effect(index, name, effect_name, enabled=True, **others):
    return schema("Effect.1", metadata=metadata(index, **others), name=name, effect_name=effect_name,
                  enabled=enabled)


def time_warp(scalar):
    kind = "FreezeFrame" if scalar == 0 else "LinearTimeWarp"
    return schema(f"{kind}.1", metadata={}, name="", effect_name=kind, enabled=True, time_scalar=scalar)


def marker(frame, duration, name, color, comment, rate):
    return schema("Marker.2", metadata={}, name=name, color=color,
                  marked_range=time_range(frame, duration, rate), comment=comment)


def color(name, red, green, blue):
    return schema("Color.1", name=name, r=red, g=green, b=blue, a=1.0)


def _reference(kind, index, name, available_range, **more):
    return schema(kind, metadata=metadata(index), name=name, available_range=available_range,
                  available_image_bounds=None, **more)


def external(index, name, available_range, target_url):
    return _reference("ExternalReference.1", index, name, available_range, target_url=target_url)


def missing(index, name, available_range):
    return _reference("MissingReference.1", index, name, available_range)


def generator(index, name, available_range, kind, parameters):
    return _reference("GeneratorReference.1", index, name, available_range, generator_kind=kind,
                      parameters=parameters)


def image_sequence(index, name, available_range, folder, prefix, suffix, first, rate, padding):
    return _reference("ImageSequenceReference.1", index, name, available_range, target_url_base=folder,
                      name_prefix=prefix, name_suffix=suffix, start_frame=first, frame_step=1,
                      rate=float(rate), frame_zero_padding=padding, missing_frame_policy="error")


def timeline(notes, name, start, tracks):
    return schema("Timeline.1", metadata=notes, name=name, global_start_time=start, tracks=tracks)
