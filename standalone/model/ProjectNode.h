#pragma once

#include <atomic>
#include <cstddef>

#include "host/BE/Model.h"

namespace standalone {

/// The project as sequences and rows hold it. It owns nothing of the project; once the project is
/// closed it only keeps its identity.
class ProjectNode final : public BE::IProject, public BE::INotification {
 public:
  /// Opens the project's station.
  ProjectNode();
  ProjectNode(const ProjectNode&) = delete;
  ProjectNode& operator=(const ProjectNode&) = delete;

  void AddRef() const noexcept override;
  void Release() const noexcept override;
  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  qelcore::messaging::StationID GetStationID() const override { return station; }

  /// This project, or empty once it was closed. [any-thread]
  qelcore::Ref<BE::IProject> FindOpenProject() noexcept;

  /// Closes the project's station.
  void Close() noexcept;

 private:
  ~ProjectNode() override = default;

  mutable std::atomic<std::size_t> count{0};
  std::atomic<bool> isOpen{true};
  const qelcore::messaging::StationID station;
};

}  // namespace standalone
