#include "standalone/import/TimelineSource.h"

#include <system_error>

namespace standalone {
namespace {

std::filesystem::path GetAbsolutePath(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::absolute(file, error).lexically_normal();
}

}  // namespace

TimelineSource DescribeFile(const std::filesystem::path& file) {
  return {file.stem().string(), {GetAbsolutePath(file).parent_path()}, {}};
}

TimelineSource DescribeBundle(const std::filesystem::path& bundle) {
  std::filesystem::path path = GetAbsolutePath(bundle);
  if (!path.has_filename()) path = path.parent_path();
  return {path.stem().string(), {path}, {}};
}

}  // namespace standalone
