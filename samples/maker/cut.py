"""The cut: what stands on each track, from the first frame on. All times are frames of the sequence;
`start` counts in frames of the sequence too, from the beginning of the media."""

from dataclasses import dataclass, field

TITLE = "The Last Ferry"
FRAME_RATE = 25
START = 90000  # 01:00:00:00
LENGTH = 4500


@dataclass(frozen=True)
class Until:
    """A gap up to that frame of the sequence."""

    frame: int


@dataclass(frozen=True)
class Transition:
    name: str = "Cross Dissolve"
    before: int = 12
    """Frames that reach into the item before, and into the one behind."""
    after: int = 12
    kind: str = "SMPTE_Dissolve"
    missing: bool = False


@dataclass(frozen=True)
class Effect:
    name: str
    missing: bool = False
    intrinsic: bool = False
    enabled: bool = True
    font: str = ""


@dataclass(frozen=True)
class Title:
    """Text drawn by the host."""

    text: str
    fonts: tuple[str, ...]
    """The first is named beside the text, the others by the clip."""


@dataclass(frozen=True)
class Generator:
    kind: str
    name: str
    parameters: dict = field(default_factory=dict)


@dataclass(frozen=True)
class Lost:
    """Media that the file knows by name only."""

    name: str


@dataclass(frozen=True)
class Nested:
    sequence: str


@dataclass(frozen=True)
class Clip:
    name: str
    frames: int
    media: object
    """A key of MEDIA, or a Title, Generator, Lost or Nested."""
    start: int = 0
    label: str = ""
    """A word of the palette or of OWN_LABELS; "standard:" before it: told as the format's own colour."""
    description: str = ""
    comment: str = ""
    tape: str = ""
    reel: str = ""
    """The tape's name where lists of cuts keep it."""
    remarks: tuple[str, ...] = ()
    source: str = ""
    """Name of the source clip."""
    video_info: str = ""
    effects: tuple[Effect, ...] = ()
    speed: float = 1
    enabled: bool = True
    adjustment: bool = False
    camera: str = ""
    markers: tuple[tuple, ...] = ()
    """(frame of the media, name, colour, comment)"""
    link: int = 0
    """Picture and sound of the same number belong together."""


@dataclass(frozen=True)
class Track:
    name: str
    kind: str
    items: tuple
    enabled: bool = True
    muted: bool = False
    locked: bool = False


LABELS = {
    "Red": "#C84B46", "Orange": "#DB7F3B", "Amber": "#E2A42C", "Yellow": "#D9CB4A", "Lime": "#9FC24A",
    "Green": "#5A8F29", "Teal": "#2F9C8C", "Cyan": "#45B5CE", "Blue": "#4A7FC1", "Indigo": "#5B5FB8",
    "Violet": "#8A63BF", "Purple": "#B35A9F", "Pink": "#DB86A8", "Brown": "#8E6645", "Tan": "#C2A882",
}
OWN_LABELS = {"Seaweed": "#3E6B5C"}

MISSING_FONT = "Brackenfold Display"
FONT = "DejaVu Sans"
CAMERAS = ("Camera A", "Camera B")
MOTION = Effect("Motion", intrinsic=True)
VOLUME = Effect("Volume", intrinsic=True)


def interview(name, frames, start, camera, **more):
    media = "ada_a" if camera == "Camera A" else "ada_b"
    more.setdefault("tape", "A002" if camera == "Camera A" else "A003")
    return Clip(name, frames, media, start, "Amber", camera=camera, source="Interview Ada multicam", **more)


def title(name, frames, text, *fonts, **more):
    return Clip(name, frames, Title(text, fonts), label="Purple", **more)


def charts(frames, start, **more):
    return Clip("Chart montage", frames, Nested("Chart montage"), start, "Teal",
                description="Charts under the narration", video_info="320 x 180 (1.0)", **more)


PICTURE = (
    Clip("Harbour before dawn", 120, "harbour_dawn", 40, "Blue", tape="A001",
         source="A001_C004_dawn", description="Slow pan from the breakwater to the pier",
         comment="Hold two beats longer", effects=(Effect("Colour Balance"), MOTION),
         markers=((60, "First light", "YELLOW", "The lamp on the pier goes out"),)),
    Transition(),
    Clip("Ferry at the pier", 88, "ferry_pier", 20, "Blue", tape="A001", description="Wide, fog lifting",
         link=1),
    Clip("Ada opens the wheelhouse", 64, "wheelhouse", 40, "Blue", reel="A002",
         comment="Door squeaks, keep it"),
    Until(274),
    interview("Interview Ada, wide", 150, 20, "Camera B", description="Ada, last skipper of the line",
              comment="First answer", link=2),
    interview("Interview Ada, close", 95, 170, "Camera A", link=2),
    charts(75, 10, comment="Inner cut still open"),
    Clip("渡し船の夜明け", 110, "watashibune", 0, "Blue", tape="B001", speed=0.5,
         description="Ferry at sunrise, half speed", effects=(Effect("Stabiliser"),)),
    Transition("Film Burn", 10, 10, "Custom_Transition", missing=True),
    Clip("Old photograph", 100, "pier_1931", 0, "Brown", description="The pier in 1931",
         effects=(Effect("Slow Zoom"),)),
    Clip("Archive crossing 1974", 60, "crossing_1974", 10, "Brown", tape="ARCH-07",
         comment="Licence pending", effects=(Effect("Deinterlace"),)),
    Transition("Fade Out", 15, 0),
    Until(889),
    Transition("Fade In", 0, 15),
    Clip("Crossing, midday", 132, "crossing", 30, "Blue", tape="B002",
         effects=(Effect("Colour Balance"), Effect("Grain Deluxe", missing=True))),
    Clip("Gulls", 48, "gulls", 12, "Green", tape="B002", comment="Out for time", enabled=False),
    interview("Interview Ada, wide", 90, 270, "Camera B", comment="Second answer", link=3),
    Clip("Timetable, close", 56, "timetable", 0, "Brown", description="The printed winter timetable"),
    Clip("Baker lights the oven", 100, "baker", 25, "Orange", tape="C001",
         description="Shot at 24 frames for the festival trailer", effects=(Effect("Warm Glow"),)),
    Transition(before=8, after=8),
    Clip("Phone video from the pier", 70, "phone", 10, "Orange", comment="Vertical; crop it or keep bars?",
         description="Sent in by a passenger", effects=(Effect("Blurred Bars"), MOTION)),
    Clip("Ακτή, πρωί", 92, "akti", 8, "Cyan", tape="B003", description="The beach behind the mole"),
    Clip("Nils says \"not yet\", twice", 118, "nils", 15, "Amber", tape="B004",
         comment="Use the second \"not yet\".\nAsk Nils for a release form.", link=4),
    Clip("Harbour clock stops", 50, "clock", 30, "Cyan", speed=0, tape="B003",
         description="Freeze frame at 5:47"),
    Clip("Storm of 1962", 80, "storm", 120, "Red", tape="ARCH-02", comment="Order a new transfer"),
    Clip("Cafe\u0301 at the quay", 78, "cafe", 12, "Orange", reel="C002",
         remarks=("GRADED BY M. OKORO", "SEE SHOT 41")),
    Clip("Rope uncoils", 70, "rope", 0, "Cyan", speed=-1, tape="B004", description="Played backwards"),
    Clip("Boat wake 🌊", 64, "wake", 8, "Cyan", speed=4, tape="B004"),
    Clip("Live feed, quay", 60, "quay_feed", 5, "Seaweed", comment="Replace when the recording is closed"),
    Clip("الميناء عند الفجر", 85, "north", 6, "Blue", tape="B005", description="The harbour from the north"),
    Clip("Lighthouse, reel 14", 66, "lighthouse", 100, "Red", reel="R14"),
    Clip("Customs shed", 72, "customs", 9, "Seaweed", description="From the second unit's server"),
    charts(75, 10, comment="Same cut again, under the second letter"),
    Transition("Dip to Black", 6, 6),
    Clip("Nils in the boatyard", 130, "nils", 170, "Amber", tape="B004", link=5,
         effects=(Effect("Colour Balance"),)),
    Transition("Fade Out", 20, 0),
    Until(2465),
    Clip("Net mending", 96, "nets", 20, "Orange", tape="C002"),
    Clip("Reel 9, transfer", 64, "reel_9", 0, "Brown", speed=0.5, tape="ARCH-09",
         comment="Old scan until the new one is linked"),
    Clip("Fish auction", 110, "auction", 10, "Orange", tape="C003",
         effects=(Effect("Noise Reduction"), Effect("Lens Flare Studio", missing=True))),
    interview("Interview Ada, close", 120, 120, "Camera A", comment="Third answer", link=6),
    Clip("Pilot boat returns", 140, "pilot", 15, "Blue", tape="D001"),
    Clip("Empty ticket hall", 125, "hall", 10, "standard:Tan", tape="D001",
         description="Nobody at the counter"),
    Clip("Ferry at the pier, rain", 105, "ferry_pier", 150, "Blue", tape="A001", link=7,
         effects=(Effect("Rain Overlay", enabled=False),)),
    Clip("Gulls over the roofs", 80, "gulls", 60, tape="B002"),
    Clip("Ada locks the wheelhouse", 150, "wheelhouse", 140, "Blue", reel="A002",
         markers=((200, "Key", "RED", "Cut on the sound of the key"),)),
    Until(3470),
    interview("Interview Ada, last answer", 145, 350, "Camera B", comment="Last answer", link=8),
    Transition(),
    Clip("Farewell", 180, Nested("Farewell"), 0, "Teal", description="The town on the quay",
         comment="Locked", effects=(Effect("Vignette"),)),
    Transition(),
    Clip("Crossing, evening", 190, "crossing", 200, "Blue", tape="B002"),
    Clip("Harbour after dark", 160, "night", 20, "standard:Indigo", tape="D002"),
    Clip("Wake closes behind", 120, "wake", 150, "Cyan", tape="B004"),
    Clip("Lamp goes out", 95, "night", 90, "standard:Indigo", tape="D002", effects=(Effect("Glow"),)),
    Transition(before=20, after=20),
    Clip("Last rope", 140, "last_rope", 30, "Blue", tape="D003",
         description="Rope falls into the water"),
    Transition("Fade Out", 25, 0),
)

INSERTS = (
    Until(300),
    Clip("Hands on the wheel", 50, "wheelhouse", 200, "Cyan", reel="A002"),
    Until(440),
    Clip("Chart detail", 40, "map", 0, "Brown", effects=(Effect("Slow Zoom"),)),
    Until(640),
    Clip("Sky matte", 40, Generator("SolidColor", "Colour matte", {"color": "#E8B070"}), 0, "Tan",
         description="Covers the crane"),
    Until(889),
    Clip("Evening grade", 132, Generator("adjustment", "Adjustment"), 0, "Teal", adjustment=True,
         effects=(Effect("Curves"), Effect("Halation", enabled=False))),
    Until(1090),
    Transition(before=0, after=8),
    Clip("Cutaway, gulls", 40, "gulls", 90, "Green", tape="B002"),
    Transition(before=8, after=0),
    Until(1240),
    Clip("Steam from the oven", 50, "baker", 150, "Orange", tape="C001", effects=(Effect("Levels"),)),
    Until(1500),
    Clip("Rope in Nils' hands", 60, "rope", 40, "Cyan", tape="B004"),
    Until(1668),
    Clip("Beacon, twelve frames", 12, "beacon", 0, "Lime", tape="VFX-03"),
    Clip("Beacon, slowed", 48, "beacon", 0, "Lime", tape="VFX-03", speed=0.25,
         effects=(Effect("Optical Flow Pro", missing=True),)),
    Until(2080),
    Clip("Pier in 1931, detail", 45, "pier_1931", 0, "Brown", description="The man with the lamp"),
    Until(2310),
    Clip("Bollard", 40, Lost("bollard_v2.mov"), 0, "Red", comment="Never arrived"),
    Until(2640),
    Clip("Fish crates, close", 55, "auction", 70, "Orange", tape="C003"),
    Until(3005),
    Clip("Ticket stub", 60, "timetable", 0, "Brown", enabled=False),
    Until(3800),
    Clip("Reflections", 90, "pilot", 60, "Cyan", tape="D001", speed=0.5),
    Until(4160),
    Clip("Ship's log", 70, "chart_north", 0, "Brown", effects=(Effect("Paper Texture"),)),
)

TITLES = (
    Until(25),
    title("Main title", 100, "The Last Ferry", MISSING_FONT, FONT),
    Until(295),
    title("Lower third Ada", 75, "Ada Merrow, skipper", FONT),
    Until(710),
    Transition("Fade In", 0, 8),
    title("Date 1931", 60, "1931", MISSING_FONT, effects=(Effect("Drop Shadow"),)),
    Transition("Fade Out", 8, 0),
    Until(806),
    title("Date 1974", 50, "1974", MISSING_FONT, effects=(Effect("Drop Shadow"),)),
    Until(1395),
    title("Place name, Ακτή", 60, "Ακτή", FONT),
    Until(1490),
    title("Lower third Nils", 75, "Nils Okoro, boatbuilder", FONT),
    Until(2230),
    Clip("Letter, handwriting", 70, Generator("text", "Letter", {"text": "Dear Ada"}), 0, "Purple",
         effects=(Effect("Handwriting", font=MISSING_FONT),)),
    Until(3630),
    title("Subtitle card, farewell", 100, "さようなら", FONT, enabled=False),
    Until(4370),
    Transition("Fade In", 0, 12),
    title("End credits", 130, "The Last Ferry", FONT, MISSING_FONT),
)

ALTERNATIVES = (
    Until(274),
    interview("Ada, wide, take 2", 150, 100, "Camera A", comment="Better voice, worse light"),
    Until(889),
    Clip("Crossing, take 3", 132, "crossing", 260, "Pink", tape="B002"),
    Until(4360),
    Clip("Last rope, long", 140, "last_rope", 10, "Pink", tape="D003"),
)

DIALOGUE = (
    Until(120),
    Clip("Ferry at the pier", 88, "ferry_pier", 20, "Green", tape="A001", link=1, effects=(VOLUME,)),
    Until(274),
    Clip("Ada, wide, boom", 245, "ada_boom", 20, "Green", tape="S001", link=2,
         comment="Slight rumble", effects=(Effect("Low Cut"), VOLUME)),
    Until(1069),
    Clip("Ada, second answer, boom", 90, "ada_boom", 270, "Green", tape="S001", link=3),
    Until(1477),
    Clip("Nils says \"not yet\", twice", 118, "nils", 15, "Green", tape="B004", link=4,
         effects=(Effect("Low Cut"), Effect("Voice Cleaner", missing=True))),
    Until(2295),
    Transition("Constant Power", 0, 5),
    Clip("Nils in the boatyard", 130, "nils", 170, "Green", tape="B004", link=5),
    Transition("Constant Power", 5, 0),
    Until(2735),
    Clip("Ada, third answer, boom", 120, "ada_boom", 120, "Green", tape="S001", link=6),
    Until(3120),
    Clip("Ferry at the pier, rain", 105, "ferry_pier", 150, "Green", tape="A001", link=7),
    Until(3470),
    Clip("Ada, last answer, boom", 145, "ada_boom", 350, "Green", tape="S001", link=8),
    Transition("Constant Power", 5, 5),
    Clip("Ada, wild line", 90, "ada_boom", 30, "Green", tape="S001", description="Over the farewell"),
)

ATMOSPHERE = (
    Clip("Harbour air", 380, "harbour_air", 0, "Lime", description="Stereo pair on the breakwater"),
    Transition("Constant Power", 10, 10),
    Clip("Harbour air", 339, "harbour_air", 30, "Lime", description="Stereo pair on the breakwater"),
    Until(889),
    Clip("Engine room", 132, "engine", 0, "Lime", tape="S002", effects=(Effect("Low Cut"),)),
    Clip("Gulls and wind", 238, "gulls_wind", 0, "Lime", tape="S002"),
    Until(1385),
    Clip("Gulls and wind", 340, "gulls_wind", 40, "Lime", tape="S002"),
    Until(1997),
    Clip("Harbour air, north side", 298, "harbour_air", 60, "Lime",
         effects=(Effect("Hall Reverb", missing=True),)),
    Until(2855),
    Clip("Engine room, idle", 140, "engine", 100, "Lime", tape="S002", speed=0.5),
    Until(3225),
    Clip("Gulls and wind", 245, "gulls_wind", 100, "Lime", tape="S002"),
    Until(3795),
    Clip("Engine room, last run", 190, "engine", 40, "Lime", tape="S002"),
    Clip("Harbour air, night", 375, "harbour_air", 0, "Lime", effects=(Effect("Low Cut"),)),
)

EFFECTS = (
    Until(45),
    Clip("Bell", 12, "bell", 0, "standard:Orange"),
    Until(214),
    Clip("Door squeak", 25, "door", 0, "Orange", comment="Keep it"),
    Until(594),
    Clip("Ferry horn", 75, "horn", 0, "Orange", effects=(Effect("Hall Echo"),)),
    Until(880),
    Clip("Ferry horn, far", 60, "horn", 10, "Orange"),
    Until(1595),
    Clip("Bell, clock", 12, "bell", 0, "standard:Orange"),
    Clip("Bell, clock", 12, "bell", 0, "standard:Orange"),
    Until(1810),
    Clip("Splash", 25, "splash", 0, "Orange"),
    Until(1880),
    Clip("Splash, wake", 20, "splash", 5, "Orange", enabled=False),
    Until(2480),
    Clip("Door squeak, shed", 25, "door", 0, "Orange"),
    Until(3400),
    Clip("Wheelhouse door", 25, "door", 0, "Orange", comment="Key foley is still missing"),
    Until(3800),
    Clip("Ferry horn, farewell", 75, "horn", 0, "Orange", effects=(Effect("Hall Echo"),)),
    Until(4420),
    Clip("Rope hits the water", 25, "splash", 0, "Orange", description="Last sound of the film"),
)

MUSIC = (
    Until(60),
    Clip("Low Tide (score)", 600, "low_tide", 0, "Violet",
         description="Temp score, cello and harmonium", comment="Composer: M. Sallow"),
    Until(704),
    Clip("Harmonium sting", 25, "sting", 0, "Violet"),
    Until(1160),
    Clip("Low Tide (score), theme", 500, "low_tide", 100, "Violet", speed=1.1),
    Until(2735),
    Transition("Constant Power", 0, 25),
    Clip("Low Tide (score), reprise", 620, "low_tide", 10, "Violet"),
    Until(3795),
    Clip("Low Tide (score), end", 630, "low_tide", 20, "Violet"),
    Transition("Constant Power", 25, 0),
)

SCRATCH = (
    Until(594),
    Clip("Scratch voice, charts", 75, "scratch", 0, "Pink", comment="To be read by Ada"),
    Until(2220),
    Clip("Scratch voice, letter", 75, "scratch", 80, "Pink"),
    Until(3615),
    Clip("Scratch voice, farewell", 150, "scratch", 30, "Pink", description="Guide track"),
)

TRACKS = (
    Track("Picture", "Video", PICTURE),
    Track("Inserts", "Video", INSERTS),
    Track("Titles", "Video", TITLES),
    Track("Alternatives", "Video", ALTERNATIVES, enabled=False),
    Track("Dialogue", "Audio", DIALOGUE, locked=True),
    Track("Atmosphere", "Audio", ATMOSPHERE),
    Track("Effects", "Audio", EFFECTS),
    Track("Music", "Audio", MUSIC),
    Track("Scratch voice", "Audio", SCRATCH, muted=True),
)

NESTED = {
    "Chart montage": (
        Track("Charts", "Video", (
            Clip("Sea chart, north sheet", 40, "chart_north", 0, "Brown"),
            Transition(before=5, after=5),
            Clip("Sea chart, harbour", 60, "map", 0, "Brown"),
        )),
        Track("Paper", "Audio", (Clip("Paper rustle", 25, "door", 0, "Orange"),)),
    ),
    "Farewell": (
        Track("Crowd", "Video", (
            Clip("Café from the water", 90, "cafe", 10, "Orange"),
            Clip("Pilot boat alongside", 90, "pilot", 30, "Blue"),
        )),
        Track("Crowd sound", "Audio", (Clip("Quay, crowd", 180, "gulls_wind", 20, "Lime"),)),
    ),
}

MARKERS = (
    (0, 1, "Reel 1", "GREEN", "First frame of picture"),
    (1595, 50, "Clock", "YELLOW", "Sound stops with the picture"),
    (3470, 145, "Last answer", "PURPLE", "Waiting for the release form"),
)
