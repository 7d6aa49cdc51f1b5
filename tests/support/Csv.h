#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Reads comma-separated values back, by the rules of RFC 4180.
namespace csv {

using Row = std::vector<std::string>;

inline std::vector<Row> Parse(std::string_view text) {
  std::vector<Row> rows;
  Row row;
  std::string field;
  bool isQuoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char byte = text[i];
    if (isQuoted && byte == '"' && i + 1 < text.size() && text[i + 1] == '"') {
      field += text[++i];
    } else if (byte == '"') {
      isQuoted = !isQuoted;
    } else if (!isQuoted && byte == ',') {
      row.push_back(std::move(field));
      field.clear();
    } else if (!isQuoted && byte == '\n') {
      row.push_back(std::move(field));
      field.clear();
      rows.push_back(std::move(row));
      row.clear();
    } else {
      field += byte;
    }
  }
  return rows;
}

/// The position of a column in the header line, or the header's size.
inline std::size_t FindColumn(const Row& header, std::string_view name) {
  std::size_t position = 0;
  while (position < header.size() && header[position] != name) ++position;
  return position;
}

}  // namespace csv
