#include "generator/MediaLibrary.h"

#include <string>
#include <string_view>
#include <utility>

#include "generator/Chance.h"
#include "generator/Words.h"

namespace generator {
namespace {

constexpr std::uint64_t kMediaStream = 1'000'000;
constexpr std::size_t kClipsOfACard = 60;

constexpr std::string_view kVolumes[] = {"RAID_01", "RAID_02", "Shuttle 7", "NAS"};
constexpr std::string_view kCodecs[] = {"ProRes 422 HQ", "DNxHR HQX", "H.264", "HEVC"};

/// As file URLs are written: what is neither a letter nor a digit nor one of a few marks is encoded.
std::string EncodePercent(std::string_view text) {
  constexpr std::string_view kPlain = "-._~/:";
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string encoded;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    const bool isLetter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
    if (isLetter || (byte >= '0' && byte <= '9') || kPlain.find(character) != std::string_view::npos) {
      encoded += character;
    } else {
      encoded.append({'%', kDigits[byte >> 4U], kDigits[byte & 15U]});
    }
  }
  return encoded;
}

class MediaMaker {
 public:
  MediaMaker(const TimelineShape& shape, const TimeBase& pictures, MediaUse use)
      : words(shape.worldTextPercent),
        pictures(pictures),
        chance(shape.seed, kMediaStream + static_cast<std::uint64_t>(use)) {}

  MediaFile MakeCameraFile(std::size_t number);
  MediaFile MakeGraphicsFile(std::size_t number);
  MediaFile MakeSoundFile();
  MediaFile MakeMusicFile();

 private:
  std::string PickFolder(std::string_view kind);
  void SetPlace(MediaFile& file, std::string folder, std::string_view extension);
  void SetAvailability(MediaFile& file);
  void SetProxy(MediaFile& file);
  void SetSize(MediaFile& file);

  const Words words;
  const TimeBase pictures;
  Chance chance;
};

std::string MediaMaker::PickFolder(std::string_view kind) {
  std::string folder = "/Volumes/" + std::string(chance.Pick(kVolumes));
  folder.append("/Harbour Film/").append(kind).append("/");
  return folder;
}

void MediaMaker::SetPlace(MediaFile& file, std::string folder, std::string_view extension) {
  file.address = std::move(folder) + file.name + std::string(extension);
  file.url = "file://" + EncodePercent(file.address);
}

/// To a drive that this kind of machine does not have.
void MoveToOtherSystem(MediaFile& file) {
  file.address = "D:/Footage" + file.address.substr(file.address.rfind('/'));
  file.url = "file:///" + EncodePercent(file.address);
  file.isLocal = false;
  file.availability = Availability::kUnstated;
}

/// Most files are where they should be.
void MediaMaker::SetAvailability(MediaFile& file) {
  switch (chance.Below(50)) {
    case 0:
      file.kind = MediaFile::Kind::kLost;
      file.availability = Availability::kUnstated;
      break;
    case 1:
      MoveToOtherSystem(file);
      break;
    case 2:
      file.availability = Availability::kOffline;
      break;
    case 3:
    case 4:
    case 5:
    case 6:
      file.availability = Availability::kUnstated;
      break;
    default:
      break;
  }
}

void MediaMaker::SetProxy(MediaFile& file) {
  if (!chance.OneIn(5)) return;
  file.proxyAddress = "/Volumes/Proxies/" + file.name + ".mp4";
  file.isProxyOffline = chance.OneIn(12);
}

void MediaMaker::SetSize(MediaFile& file) {
  if (!chance.OneIn(3)) return;
  const bool isLarge = chance.OneIn(2);
  file.width = isLarge ? 3840 : 1920;
  file.height = isLarge ? 2160 : 1080;
}

/// Cards of sixty clips, and several cards a day.
MediaFile MediaMaker::MakeCameraFile(std::size_t number) {
  const std::size_t card = number / kClipsOfACard;
  MediaFile file;
  file.isCamera = true;
  const std::string tape = (chance.OneIn(3) ? "B" : "A") + PadNumber(1 + card, 3);
  if (chance.OneIn(2)) file.tape = tape;
  file.name = tape + "C" + PadNumber(1 + number % kClipsOfACard, 3) + "_";
  file.name += PadNumber(101 + card / 4 % 1131, 4);
  file.name += static_cast<char>('A' + chance.Below(26));
  file.name += static_cast<char>('A' + chance.Below(26));
  file.clipName = chance.OneIn(6) ? file.name : words.MakeShotName(chance);
  SetPlace(file, PickFolder("Day " + PadNumber(1 + card / 4, 2)), ".mov");
  const bool isSlowMotion = chance.OneIn(20);
  file.pictureBase = isSlowMotion ? TimeBase{50, 1, "50.0", "50"} : pictures;
  file.firstFrame = static_cast<std::int64_t>(chance.Below(2'000'000));
  file.frames = static_cast<std::int64_t>(400 + chance.Below(20'000));
  file.hasRange = chance.Percent(35);
  if (chance.OneIn(3)) file.codec = chance.Pick(kCodecs);
  SetSize(file);
  SetAvailability(file);
  SetProxy(file);
  return file;
}

/// Stills, and now and then the numbered pictures of an effects shot.
MediaFile MediaMaker::MakeGraphicsFile(std::size_t number) {
  MediaFile file;
  file.clipName = words.MakeGraphicsName(chance);
  file.pictureBase = pictures;
  SetSize(file);
  if (chance.OneIn(3)) {
    file.kind = MediaFile::Kind::kPictures;
    file.name = "VFX_" + PadNumber(number, 4) + "_comp_v" + PadNumber(1 + chance.Below(20), 2) + ".";
    file.frames = static_cast<std::int64_t>(200 + chance.Below(2000));
    SetPlace(file, PickFolder("VFX"), "");
    file.address += std::to_string(kFirstPicture) + ".exr";
    return file;
  }
  file.name = file.clipName + ' ' + std::to_string(number);
  file.frames = 1;
  const std::string_view extension = chance.OneIn(2) ? ".png" : ".tif";
  SetPlace(file, PickFolder("Graphics"), extension);
  SetAvailability(file);
  return file;
}

MediaFile MediaMaker::MakeSoundFile() {
  MediaFile file;
  file.clipName = words.MakeSoundName(chance);
  file.name = file.clipName;
  file.hasRange = chance.OneIn(6);
  file.frames = static_cast<std::int64_t>(4000 + chance.Below(1'000'000));
  if (chance.OneIn(4)) file.codec = "PCM";
  SetPlace(file, PickFolder("Sound"), ".wav");
  SetAvailability(file);
  return file;
}

MediaFile MediaMaker::MakeMusicFile() {
  MediaFile file;
  file.clipName = words.MakeMusicName(chance);
  file.name = file.clipName;
  file.frames = static_cast<std::int64_t>(20'000'000 + chance.Below(5'000'000));
  file.codec = "AAC";
  SetPlace(file, PickFolder("Music"), ".m4a");
  SetAvailability(file);
  return file;
}

}  // namespace

MediaLibrary::MediaLibrary(const TimelineShape& shape, const TimeBase& pictures) {
  MediaMaker cameraMaker(shape, pictures, MediaUse::kCamera);
  const std::size_t cameraFiles = 1 + shape.clips / 18;
  for (std::size_t i = 0; i < cameraFiles; ++i) camera.push_back(cameraMaker.MakeCameraFile(i));
  MediaMaker graphicsMaker(shape, pictures, MediaUse::kGraphics);
  const std::size_t graphicsFiles = 1 + shape.clips / 400;
  for (std::size_t i = 0; i < graphicsFiles; ++i) graphics.push_back(graphicsMaker.MakeGraphicsFile(i));
  MediaMaker soundMaker(shape, pictures, MediaUse::kSounds);
  for (std::size_t i = 0; i < 1 + shape.clips / 60; ++i) sounds.push_back(soundMaker.MakeSoundFile());
  MediaMaker musicMaker(shape, pictures, MediaUse::kMusic);
  for (std::size_t i = 0; i < 1 + shape.clips / 2000; ++i) music.push_back(musicMaker.MakeMusicFile());
}

const std::vector<MediaFile>& MediaLibrary::Get(MediaUse use) const {
  switch (use) {
    case MediaUse::kGraphics:
      return graphics;
    case MediaUse::kSounds:
      return sounds;
    case MediaUse::kMusic:
      return music;
    default:
      return camera;
  }
}

}  // namespace generator
