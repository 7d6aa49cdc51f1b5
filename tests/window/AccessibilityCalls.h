#pragma once

#include <vector>

/// An event that assistive programs are told of: its kind, and the child concerned.
struct Told {
  int kind = 0;
  int child = -1;
  friend bool operator==(const Told&, const Told&) = default;
};

/// Listens for its lifetime as assistive programs do, and keeps what tables tell. One at a time.
class ToldWatch {
 public:
  ToldWatch();
  ~ToldWatch();
  ToldWatch(const ToldWatch&) = delete;
  ToldWatch& operator=(const ToldWatch&) = delete;

  const std::vector<Told>& GetTold() const noexcept { return told; }
  void Add(const Told& event) { told.push_back(event); }

 private:
  std::vector<Told> told;
};
