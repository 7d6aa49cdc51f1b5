#include "generator/Words.h"

namespace generator {
namespace {

constexpr std::string_view kPlaces[] = {
    "KITCHEN",   "HARBOUR", "STATION", "OFFICE",    "ROOFTOP", "FOREST_ROAD", "HOSPITAL",
    "CLASSROOM", "MARKET",  "BEACH",   "STAIRWELL", "GARAGE",  "OLD_MILL",    "FERRY_DECK",
};
constexpr std::string_view kPeople[] = {
    "Maria Keller", "Tom Okafor",  "Ines Duarte", "Jonas Lind",  "Priya Raman",
    "Ada Novak",    "Samuel Boyd", "Lena Hoff",   "Victor Sand", "Amina Diallo",
};
constexpr std::string_view kSights[] = {
    "harbour cranes", "hands at work", "city at night", "train window", "crowd walking",
    "empty corridor", "sunrise field", "gulls",         "coffee steam", "rain on glass",
};
constexpr std::string_view kWorldShots[] = {
    "東京駅_夜景",           "インタビュー 田中",    "Straßenfest Köln", "Entrevista Núñez",
    "Café à l'aube",         "Интервью у моря",      "인터뷰 서울",      "🎬 Pick-up",
    "مقابلة السوق",          "Łódź centrum",         "北京 胡同 清晨",   "Sølvhavn kai",
    "İstanbul köprü geçişi", "Ατμόπλοιο στο λιμάνι",
};
constexpr std::string_view kSounds[] = {
    "Door wood close", "Footsteps gravel", "Car pass wet", "Phone buzz",  "Wind light",
    "Crowd murmur",    "Whoosh short",     "Glass clink",  "Gull cries",  "Engine idle",
    "Paper rustle",    "Rain window",      "Impact deep",  "Room tone A", "Keyboard fast",
};
constexpr std::string_view kWorldSounds[] = {
    "波の音", "Türe öffnet", "Шум дождя", "Pas dans l'escalier été", "발소리",
};
constexpr std::string_view kMusic[] = {
    "Slow Tide", "Paper Boats", "Northern Line", "After Hours", "First Light", "Undertow",
};
constexpr std::string_view kWorldMusic[] = {"夜の海", "Corazón de sal", "Nächtliche Fahrt"};
constexpr std::string_view kGraphics[] = {
    "Logo white", "Map Europe", "Lower third frame", "Chart 2019", "Photo archive", "Film dust",
};
constexpr std::string_view kWorldGraphics[] = {"地図 日本", "Übersichtskarte", "Схема порта"};
constexpr std::string_view kTitles[] = {
    "Lower third", "Chapter", "Opening title", "Subtitle burn-in", "End credits", "Location",
};
constexpr std::string_view kWorldTitles[] = {"章タイトル", "Générique de fin", "Untertitel ⚓"};
constexpr std::string_view kComments[] = {
    "Good energy, use the second half of take ",
    "Soft focus at the end, see take ",
    "Boom in frame, crop to ",
    "Client prefers version ",
    "Hold two beats longer than cut ",
    "Waiting for release form ",
    "Replace with VFX shot ",
    "Colour does not match shot ",
    "Director: \"tighter\", note ",
    "Temp, final comes with delivery\nnumber ",
};
constexpr std::string_view kWorldComments[] = {
    "笑顔が良い、後半を使う ",
    "Très bon, garder la fin ",
    "Ton übersteuert ab Bild ",
    "👍 best take ",
    "Лучший дубль ",
    "색보정 필요 ",
};
constexpr std::string_view kDescriptions[] = {
    "Slow pan from left to right, take ",   "Wide, the door opens, take ",
    "Close-up of the hands, take ",         "Handheld, follows the actor, take ",
    "Static, two people at a table, take ", "Drone, rises over the roofs, take ",
};
constexpr std::string_view kWorldDescriptions[] = {
    "港から橋へのパン ",
    "Plan serré sur le visage ",
    "Медленная панорама ",
    "Weitwinkel über der Elbe ",
};
constexpr std::string_view kScenes[] = {
    "Opening montage", "Courtroom day two", "Flashback", "Chase", "Epilogue", "Recap",
};
constexpr std::string_view kWorldScenes[] = {"回想シーン", "Rückblende", "Финал"};

constexpr std::string_view kEffects[] = {
    "Gaussian Blur", "Colour Balance", "Sharpen",      "Film Grain",    "Noise Reduction",
    "Stabiliser",    "Crop",           "Vignette",     "Chroma Key",    "Lens Flare",
    "Curves",        "Mirror",         "Drop Shadow",  "Glow",          "Letterbox",
    "Timecode Burn", "De-esser",       "Compressor",   "Parametric EQ", "Reverb",
    "High Pass",     "Hum Removal",    "Stereo Width", "Day for Night", "Skin Smoother 2",
};
constexpr std::string_view kBuiltInPanels[] = {"Transform", "Cropping", "Composite", "Dynamic Zoom"};
constexpr std::string_view kTransitions[] = {
    "Cross Dissolve", "Cross Dissolve", "Cross Dissolve", "Dip to Black", "Wipe", "Film Dissolve",
};
constexpr std::string_view kFonts[] = {
    "DejaVu Sans", "DejaVu Serif", "Helios Condensed", "No Such Font", "Lost Grotesk", "源ノ角ゴシック",
};
constexpr std::string_view kMarkers[] = {
    "Check focus", "Music starts", "Sound sync", "VFX", "Clear the rights", "Ask the director",
};

/// One of the plain texts, or one with letters beyond ASCII.
class Choice {
 public:
  Choice(unsigned worldPercent, Chance& chance)
      : isWorld(chance.Percent(worldPercent)), chance(chance) {}

  template <std::size_t kCount, std::size_t kWorldCount>
  std::string Pick(const std::string_view (&texts)[kCount],
                   const std::string_view (&worldTexts)[kWorldCount]) {
    return std::string(isWorld ? chance.Pick(worldTexts) : chance.Pick(texts));
  }

  const bool isWorld;

 private:
  Chance& chance;
};

std::string MakeSceneTake(Chance& chance) {
  std::string name = chance.OneIn(3) ? "EXT_" : "INT_";
  name += chance.Pick(kPlaces);
  name += '_' + PadNumber(1 + chance.Below(180), 3);
  return name + "_T" + std::to_string(1 + chance.Below(9));
}

}  // namespace

std::string PadNumber(std::size_t number, std::size_t width) {
  std::string text = std::to_string(number);
  if (text.size() < width) text.insert(0, width - text.size(), '0');
  return text;
}

std::string Words::MakeShotName(Chance& chance) const {
  const std::string number = PadNumber(1 + chance.Below(40), 2);
  if (chance.Percent(worldPercent)) return std::string(chance.Pick(kWorldShots)) + ' ' + number;
  switch (chance.Below(4)) {
    case 0:
      return "Interview " + std::string(chance.Pick(kPeople)) + ' ' + number;
    case 1:
      return "B-roll " + std::string(chance.Pick(kSights)) + ' ' + number;
    default:
      return MakeSceneTake(chance);
  }
}

std::string Words::MakeSoundName(Chance& chance) const {
  const std::string name = Choice(worldPercent, chance).Pick(kSounds, kWorldSounds);
  return name + ' ' + PadNumber(1 + chance.Below(30), 2);
}

std::string Words::MakeMusicName(Chance& chance) const {
  std::string name = Choice(worldPercent, chance).Pick(kMusic, kWorldMusic);
  name += ' ' + PadNumber(1 + chance.Below(12), 2);
  return chance.OneIn(2) ? name + " (instrumental)" : name;
}

std::string Words::MakeGraphicsName(Chance& chance) const {
  const std::string name = Choice(worldPercent, chance).Pick(kGraphics, kWorldGraphics);
  return name + ' ' + PadNumber(1 + chance.Below(20), 2);
}

std::string Words::MakeTitle(Chance& chance) const {
  const std::string name = Choice(worldPercent, chance).Pick(kTitles, kWorldTitles);
  return name + ' ' + std::to_string(1 + chance.Below(200));
}

std::string Words::MakeComment(Chance& chance) const {
  const std::string text = Choice(worldPercent, chance).Pick(kComments, kWorldComments);
  return text + std::to_string(1 + chance.Below(2000));
}

std::string Words::MakeDescription(Chance& chance) const {
  const std::string text = Choice(worldPercent, chance).Pick(kDescriptions, kWorldDescriptions);
  return text + std::to_string(1 + chance.Below(9));
}

std::string Words::MakeSceneName(Chance& chance) const {
  const std::string name = Choice(worldPercent, chance).Pick(kScenes, kWorldScenes);
  return name + ' ' + std::to_string(1 + chance.Below(40));
}

std::string_view PickEffect(Chance& chance) {
  return chance.Pick(kEffects);
}

std::string_view PickBuiltInPanel(Chance& chance) {
  return chance.Pick(kBuiltInPanels);
}

std::string_view PickTransition(Chance& chance) {
  return chance.Pick(kTransitions);
}

std::string_view PickFont(Chance& chance) {
  return chance.Pick(kFonts);
}

std::string_view PickMarker(Chance& chance) {
  return chance.Pick(kMarkers);
}

}  // namespace generator
