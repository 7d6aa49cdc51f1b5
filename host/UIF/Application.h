#pragma once

#include "host/HostAPI.h"
#include "host/UIF/Commands.h"

namespace UIF {

/// The application: the commander that commands reach last. [main-thread]
class HOST_API Application : public Commander {
 public:
  /// Lives as long as the host.
  static Application& Instance();
  ~Application() override;

 protected:
  Application();
};

/// The arrangement of panels. [main-thread]
class HOST_API Workspace {
 public:
  Workspace(const Workspace&) = delete;
  Workspace& operator=(const Workspace&) = delete;
  /// Lives as long as the host.
  static Workspace& Instance();
  /// True while the panels of a stored arrangement are being created.
  bool IsBeingLoaded() const;

 protected:
  Workspace();
  ~Workspace();
};

}  // namespace UIF
