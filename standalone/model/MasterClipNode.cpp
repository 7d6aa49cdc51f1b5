#include "standalone/model/MasterClipNode.h"

#include <utility>

namespace standalone {
namespace {

constexpr std::string_view kCommentProperty = "Column.PropertyText.Comment";

}  // namespace

ProjectItemNode::ProjectItemNode(const SequenceContent& content, Texts texts)
    : ContentNode(content), texts(std::move(texts)) {}

void* ProjectItemNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  return id == BE::IProjectItem::kInterfaceID ? static_cast<BE::IProjectItem*>(this) : nullptr;
}

qelcore::UTF8String ProjectItemNode::GetColumnProperty(std::string_view propertyName) const {
  return propertyName == kCommentProperty ? texts.comment : qelcore::UTF8String();
}

void ProjectItemNode::RequestComment() const noexcept {
  __builtin_prefetch(texts.comment.View().data());
}

MasterClipNode::MasterClipNode(const SequenceContent& content, qelcore::UTF8String name, Source source,
                               ProjectItemNode::Texts texts)
    : ContentNode(content),
      name(std::move(name)),
      source(source),
      projectItem(content, std::move(texts)) {}

void* MasterClipNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  if (id == BE::IMasterClip::kInterfaceID) return static_cast<BE::IMasterClip*>(this);
  if (id == kInterfaceID) return this;
  return nullptr;
}

qelcore::Borrowed<BE::IMedia> MasterClipNode::GetMedia() const {
  return qelcore::Borrowed<BE::IMedia>(source.media);
}

qelcore::Borrowed<BE::IMedia> MasterClipNode::GetProxyMedia() const {
  return qelcore::Borrowed<BE::IMedia>(source.proxy);
}

qelcore::Borrowed<BE::IProjectItem> MasterClipNode::GetProjectItem() {
  projectItem.RequestComment();
  return qelcore::Borrowed<BE::IProjectItem>(&projectItem);
}

}  // namespace standalone
