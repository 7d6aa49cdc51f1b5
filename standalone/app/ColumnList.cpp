#include "standalone/app/ColumnList.h"

#include <algorithm>
#include <functional>

#include "standalone/app/CommandError.h"
#include "standalone/app/NameList.h"
#include "standalone/model/TextCase.h"

namespace standalone {

namespace {

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::vector<std::string> SplitNames(std::string_view text) {
  std::vector<std::string> names;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find(',', start), text.size());
    names.emplace_back(Trim(text.substr(start, end - start)));
    start = end + 1;
  }
  return names;
}

bool IsNamed(const AvailableColumn& column, std::string_view name) {
  return EqualsIgnoringCase(column.name, name) || std::to_string(column.id) == name;
}

CommandError MakeUnknownColumnError(const std::string& name,
                                    const std::vector<AvailableColumn>& columns) {
  return CommandError("--columns: There is no column \"" + name + "\"; there are " +
                      ListNames(columns, std::mem_fn(&AvailableColumn::name)) + ".");
}

}  // namespace

ColumnChoice ReadColumnChoice(std::string_view text) {
  const std::string_view only = Trim(text);
  if (EqualsIgnoringCase(only, "default")) return {ColumnChoice::Kind::kDefault, {}};
  if (EqualsIgnoringCase(only, "all")) return {ColumnChoice::Kind::kAll, {}};
  ColumnChoice choice{ColumnChoice::Kind::kListed, SplitNames(text)};
  if (std::ranges::find(choice.names, "") != choice.names.end()) {
    throw CommandError("--columns: A name is empty; give default, all, or names separated by commas.");
  }
  return choice;
}

std::vector<std::uint32_t> FindColumns(const std::vector<std::string>& names,
                                       const std::vector<AvailableColumn>& columns) {
  std::vector<std::uint32_t> ids;
  for (const std::string& name : names) {
    const auto found = std::ranges::find_if(
        columns, [&name](const AvailableColumn& column) { return IsNamed(column, name); });
    if (found == columns.end()) throw MakeUnknownColumnError(name, columns);
    if (std::ranges::find(ids, found->id) != ids.end()) {
      throw CommandError("--columns: The column \"" + found->name + "\" is named twice.");
    }
    ids.push_back(found->id);
  }
  return ids;
}

}  // namespace standalone
