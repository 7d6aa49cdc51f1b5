#pragma once

#include <cstddef>
#include <vector>

#include "host/BE/Model.h"
#include "host/ZSL/Color.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"
#include "standalone/model/ContentNode.h"
#include "standalone/model/MasterClipNode.h"
#include "standalone/model/MediaNode.h"
#include "standalone/model/TransitionNode.h"

namespace standalone {

/// The cameras of a clip with several of them.
struct MulticamCameras {
  std::vector<qelcore::UTF8String> names;
  /// An index into the names; 0 when there are none.
  std::size_t selected = 0;
};

class ClipNode final : public ContentNode<BE::IClip, BE::IChildClip, BE::IComponentOwner> {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("standalone::ClipNode");

  /// What a clip shows. Pointers lead to nodes of the same content; all but the media may be null.
  struct Values {
    qelcore::UTF8String name;
    qelcore::UTF8String videoInfo;
    qelmediatypes::TickTime frameDuration;
    MediaNode* media = nullptr;
    MasterClipNode* masterClip = nullptr;
    TransitionNode* headTransition = nullptr;
    TransitionNode* tailTransition = nullptr;
    /// Null unless the clip is a multi-camera clip.
    const MulticamCameras* cameras = nullptr;
    /// Where the clip's components lie among those of the content.
    std::size_t firstComponent = 0;
    std::size_t componentCount = 0;
    ZSL::Color labelColor;
    bool isGraphic = false;
    bool isDisabled = false;
    bool isSpeedChanged = false;
    bool isSequence = false;
  };

  ClipNode(const SequenceContent& content, Values values);

  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  qelcore::UTF8String GetName() const override { return values.name; }
  bool IsDisabled() const override { return values.isDisabled; }
  bool IsMulticam() const override { return values.cameras != nullptr; }
  qelmediatypes::TickTime GetFrameDuration() const override { return values.frameDuration; }
  qelcore::Borrowed<BE::IMedia> GetMedia() const override;
  bool IsSpeedChanged() const override { return values.isSpeedChanged; }
  bool IsSequence() const override { return values.isSequence; }
  qelcore::Borrowed<BE::IMasterClip> GetMasterClip() const override;
  std::size_t GetComponentCount() const override { return values.componentCount; }
  qelcore::Borrowed<BE::IComponent> GetComponent(std::size_t index) const override;

  const Values& GetValues() const noexcept { return values; }

  /// The source of the clip that is built behind this one, if one is.
  void SetNextSource(const MasterClipNode* source) noexcept { nextSource = source; }

  /// Asks the memory for the clip behind this one and for its source. The clips of a long timeline and
  /// their sources lie in no cache; whoever reads the clips of a track one after the other, or of
  /// several tracks in turn, then does not wait for them.
  void RequestNext() const noexcept;

  /// The project that holds the clip's proxy, or empty.
  qelcore::Ref<BE::IProject> GetContainingProxyProject() const;

 private:
  Values values;
  const MasterClipNode* nextSource = nullptr;
};

/// The node of a clip, as far as this host made it, borrowed; null for objects that answer the public
/// interfaces only.
ClipNode* FindClipNode(qelcore::Borrowed<BE::IClip> clip) noexcept;

}  // namespace standalone
