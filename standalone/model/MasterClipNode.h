#pragma once

#include <string_view>

#include "host/BE/Model.h"
#include "host/qelcore/UTF8String.h"
#include "standalone/model/ContentNode.h"
#include "standalone/model/MediaNode.h"

namespace standalone {

class ProjectItemNode final : public ContentNode<BE::IProjectItem> {
 public:
  struct Texts {
    qelcore::UTF8String comment;
    qelcore::UTF8String description;
    qelcore::UTF8String tapeName;
  };

  ProjectItemNode(const SequenceContent& content, Texts texts);

  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  qelcore::UTF8String GetColumnProperty(std::string_view propertyName) const override;
  qelcore::UTF8String GetDescription() const override { return texts.description; }
  qelcore::UTF8String GetTapeName() const override { return texts.tapeName; }

  /// Asks the memory for the comment, which is the clip's own, where descriptions and tapes are shared:
  /// whoever asks for the item mostly reads it.
  void RequestComment() const noexcept;

 private:
  Texts texts;
};

/// A master clip with its project item.
class MasterClipNode final : public ContentNode<BE::IMasterClip> {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("standalone::MasterClipNode");

  /// What a master clip plays: nodes of the same content; there may be no proxy.
  struct Source {
    MediaNode* media = nullptr;
    MediaNode* proxy = nullptr;
    bool isStill = false;
  };

  MasterClipNode(const SequenceContent& content, qelcore::UTF8String name, Source source,
                 ProjectItemNode::Texts texts);

  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  qelcore::UTF8String GetName() const override { return name; }
  qelcore::Borrowed<BE::IMedia> GetMedia() const override;

  qelcore::Borrowed<BE::IMedia> GetProxyMedia() const;
  qelcore::Borrowed<BE::IProjectItem> GetProjectItem();
  bool IsStill() const noexcept { return source.isStill; }

 private:
  qelcore::UTF8String name;
  Source source;
  ProjectItemNode projectItem;
};

}  // namespace standalone
