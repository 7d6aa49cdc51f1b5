#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"

namespace qelcore::config {

/// Resolves localisation keys. A key begins with "$$$/", names a path, and ends in "=" and its
/// default text, optionally followed by "#{comment}" and a remark for translators.
class HOST_API Localizer {
 public:
  Localizer(const Localizer&) = delete;
  Localizer& operator=(const Localizer&) = delete;

  /// The host's localiser; it lives as long as the host. [any-thread]
  static const Localizer& Get();

  /// The text of `key`: its translation, else the default text after the first "=", up to the first
  /// "#{comment}" or the end, untouched (no trimming). A key without "=" gives the key itself.
  /// [any-thread]
  UTF8String Localize(std::string_view key) const;

 protected:
  Localizer();
  ~Localizer();
};

/// `text` with "@0" to "@9" replaced by the arguments of those positions in one pass from the left;
/// what an argument brings in is never searched, and a number without argument stays as it is.
/// [any-thread]
HOST_API UTF8String ReplaceArguments(std::string_view text,
                                     std::initializer_list<std::string_view> arguments);

}  // namespace qelcore::config
