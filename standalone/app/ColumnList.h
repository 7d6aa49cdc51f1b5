#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace standalone {

/// Which columns are wanted.
struct ColumnChoice {
  enum class Kind {
    kAsShown,  ///< What the panel shows by itself.
    kDefault,  ///< "Show Default Columns".
    kAll,      ///< "Show All Columns".
    kListed,   ///< Those of `names`, in that order.
  };
  Kind kind = Kind::kAsShown;
  /// Header texts, or identifiers in digits.
  std::vector<std::string> names;
};

/// Reads what --columns says: "default", "all", or names separated by commas. Throws: CommandError for
/// an empty list or name.
ColumnChoice ReadColumnChoice(std::string_view text);

/// A column that can be shown.
struct AvailableColumn {
  std::string name;
  std::uint32_t id = 0;
};

/// The identifiers of the named columns, in the order of the names. Names match in any case of ASCII
/// letters. Throws: CommandError for a name that no column has, and for a column that is named twice.
std::vector<std::uint32_t> FindColumns(const std::vector<std::string>& names,
                                       const std::vector<AvailableColumn>& columns);

}  // namespace standalone
