#pragma once

#include "host/qelcore/Reference.h"

namespace standalone {

class SequenceContent;

/// Counts a reference to a published content.
void AddContentReference(const SequenceContent& content) noexcept;
void ReleaseContentReference(const SequenceContent& content) noexcept;

/// A node of a published content. It has no count of its own: a reference to any node keeps the whole
/// content alive, so what a node reaches needs no counting at all, and nodes may point at each other.
/// Immutable; [any-thread].
template <typename... Interfaces>
class ContentNode : public Interfaces... {
 public:
  explicit ContentNode(const SequenceContent& content) noexcept : content(&content) {}
  ContentNode(const ContentNode&) = delete;
  ContentNode& operator=(const ContentNode&) = delete;

  void AddRef() const noexcept final { AddContentReference(*content); }
  void Release() const noexcept final { ReleaseContentReference(*content); }

 protected:
  ~ContentNode() override = default;
  const SequenceContent& GetContent() const noexcept { return *content; }

 private:
  const SequenceContent* content;
};

}  // namespace standalone
