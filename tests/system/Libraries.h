#pragma once

#include <dlfcn.h>

#include <filesystem>
#include <fstream>
#include <string>

/// Whether the dynamic linker still knows a library.
inline bool IsKnownToLinker(const std::filesystem::path& library) {
  void* const handle = dlopen(library.c_str(), RTLD_LAZY | RTLD_NOLOAD);
  if (handle != nullptr) dlclose(handle);
  return handle != nullptr;
}

/// Whether any part of a file is mapped into this process.
inline bool IsMapped(const std::filesystem::path& file) {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    if (line.find(file.filename().native()) != std::string::npos) return true;
  }
  return false;
}
