#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "host/qelcore/Messaging.h"

namespace standalone {

/// A listener that hands what it receives to a function, as long as its owner keeps it.
class MessageListener final : public qelcore::messaging::Listener {
 public:
  using Function = std::function<void(const qelcore::messaging::Message&)>;

  static std::shared_ptr<MessageListener> Make(Function function) {
    return std::make_shared<MessageListener>(std::move(function));
  }
  explicit MessageListener(Function function) : function(std::move(function)) {}

  void ReceiveMessage(const qelcore::messaging::Message& message) override { function(message); }

 private:
  const Function function;
};

}  // namespace standalone
