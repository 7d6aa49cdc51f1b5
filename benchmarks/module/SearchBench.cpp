#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "common/Inputs.h"
#include "common/Stage.h"
#include "data/FilterGroups.h"
#include "data/SearchPredicate.h"
#include "host/qelcore/UTF8String.h"
#include "module/SearchTexts.h"

namespace {

using benchmarks::Inputs;
using benchmarks::SearchTexts;
using Vantrel::TrackItemDataList;

/// What is written in the texts, and what is looked for, all of seven letters.
struct World {
  const char* name;
  unsigned worldTextPercent;
  const char* absent;
  const char* rare;
  const char* common;
};

constexpr World kAscii{"ascii", 0, "zyxwvut", "ake 123", "terview"};
constexpr World kUtf8{"utf8", 100, "щъыэюяё", "бль 123", "нтервью"};

/// Gaps are never searched.
const TrackItemDataList& GetRows(const benchmark::State& state, const World& world) {
  return Inputs::Get().GetClipRows(static_cast<std::size_t>(state.range()), world.worldTextPercent);
}

const SearchTexts& GetTexts(const benchmark::State& state, const World& world) {
  static std::map<std::pair<std::int64_t, unsigned>, SearchTexts> made;
  const std::pair key(state.range(), world.worldTextPercent);
  auto found = made.find(key);
  if (found == made.end()) found = made.emplace(key, SearchTexts(GetRows(state, world))).first;
  return found->second;
}

void CountWork(benchmark::State& state, const World& world, std::size_t hits) {
  const SearchTexts& texts = GetTexts(state, world);
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(texts.CountRows()));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(texts.GetBytes().size()));
  state.counters["hits"] = static_cast<double>(hits);
}

void Search(benchmark::State& state, const World& world, const char* wanted) {
  const TrackItemDataList& rows = GetRows(state, world);
  std::size_t hits = 0;
  for (auto _ : state) {
    const auto predicate = Vantrel::MakeSearchPredicate(qelcore::UTF8String(wanted));
    hits = 0;
    for (const auto& row : rows) hits += predicate(row) ? 1 : 0;
    benchmark::DoNotOptimize(hits);
  }
  CountWork(state, world, hits);
}

/// Searches byte by byte, each through a table that lowers "A" to "Z".
class ByteLoop {
 public:
  explicit ByteLoop(std::string_view wanted) : wanted(wanted) {
    for (std::size_t i = 0; i < lowered.size(); ++i) {
      lowered[i] = static_cast<char>(i >= 'A' && i <= 'Z' ? i + ('a' - 'A') : i);
    }
  }

  bool IsContainedIn(std::string_view text) const noexcept {
    for (std::size_t start = 0; start + wanted.size() <= text.size(); ++start) {
      if (BeginsWith(text.data() + start)) return true;
    }
    return false;
  }

 private:
  bool BeginsWith(const char* bytes) const noexcept {
    for (const char byte : wanted) {
      if (lowered[static_cast<unsigned char>(*bytes++)] != byte) return false;
    }
    return true;
  }

  std::string_view wanted;
  std::array<char, 256> lowered;
};

// The same test, written down plainly: the texts are asked for, then searched byte by byte.
void SearchPlainly(benchmark::State& state, const World& world, const char* wanted) {
  const TrackItemDataList& rows = GetRows(state, world);
  const ByteLoop loop(wanted);
  std::size_t hits = 0;
  for (auto _ : state) {
    hits = 0;
    for (const auto& row : rows) {
      hits += std::ranges::any_of(benchmarks::GetSearchedTexts(row),
                                  [&](const auto& text) { return loop.IsContainedIn(text.View()); });
    }
    benchmark::DoNotOptimize(hits);
  }
  CountWork(state, world, hits);
}

// The texts stand ready, side by side in memory.
void SearchBytes(benchmark::State& state, const World& world, const char* wanted) {
  const SearchTexts& texts = GetTexts(state, world);
  const ByteLoop loop(wanted);
  std::size_t hits = 0;
  for (auto _ : state) {
    hits = 0;
    for (std::size_t row = 0; row < texts.CountRows(); ++row) {
      const std::string_view* const first = texts.GetTexts(row);
      hits += std::any_of(first, first + SearchTexts::kTextsOfARow,
                          [&](std::string_view text) { return loop.IsContainedIn(text); });
    }
    benchmark::DoNotOptimize(hits);
  }
  CountWork(state, world, hits);
}

// Counts every place, of which a row may have several.
void SearchMemory(benchmark::State& state, const World& world, const char* wanted) {
  const std::string& bytes = GetTexts(state, world).GetBytes();
  const char* const end = bytes.data() + bytes.size();
  const std::size_t length = std::strlen(wanted);
  std::size_t hits = 0;
  for (auto _ : state) {
    hits = 0;
    const void* found = bytes.data();
    while ((found = memmem(found, end - static_cast<const char*>(found), wanted, length)) != nullptr) {
      found = static_cast<const char*>(found) + length;
      ++hits;
    }
    benchmark::DoNotOptimize(hits);
  }
  CountWork(state, world, hits);
}

void CopyTexts(benchmark::State& state) {
  const std::string& bytes = GetTexts(state, kAscii).GetBytes();
  std::string copy(bytes.size(), '\0');
  for (auto _ : state) {
    std::memcpy(copy.data(), bytes.data(), bytes.size());
    benchmark::ClobberMemory();
  }
  CountWork(state, kAscii, 0);
}

using SearchFunction = void (*)(benchmark::State&, const World&, const char*);

void RegisterSearch(const std::string& name, SearchFunction search) {
  for (const World* const world : {&kAscii, &kUtf8}) {
    for (const auto& [how, wanted] :
         {std::pair("absent", world->absent), std::pair("rare", world->rare),
          std::pair("common", world->common)}) {
      benchmarks::RegisterStage(name + "/" + how + "/" + world->name,
                                [=](benchmark::State& state) { search(state, *world, wanted); });
    }
  }
}

const bool isRegistered = [] {
  RegisterSearch("search", Search);
  RegisterSearch("search_plain", SearchPlainly);
  RegisterSearch("search_bytes", SearchBytes);
  RegisterSearch("search_memmem", SearchMemory);
  return benchmarks::RegisterStage("search_memcpy", CopyTexts);
}();

}  // namespace
