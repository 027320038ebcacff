#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace velmar::sample {

/// A generator whose numbers are the same on every machine, as the standard distributions are not.
/// Callers draw one number a statement: the order of drawing within an expression is left open.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  /// A number from 0 to `count` - 1; `count` is at least 1 and has at most 32 bits.
  std::size_t Below(std::size_t count) {
    return static_cast<std::size_t>(((Next() >> 32) * count) >> 32);
  }

  /// A number from `low` to `high`, both of them included.
  int Between(int low, int high) {
    return low + static_cast<int>(Below(static_cast<std::size_t>(high - low) + 1));
  }

  /// True in `percent` of 100 cases.
  bool Chance(int percent) { return Between(0, 99) < percent; }

  /// One of the items of a list that is not empty.
  template <typename List>
  const auto& Pick(const List& items) {
    return items[Below(items.size())];
  }

  /// Puts the items into any order.
  template <typename Item>
  void Shuffle(std::vector<Item>& items) {
    for (std::size_t left = items.size(); left > 1; --left) {
      std::swap(items[left - 1], items[Below(left)]);
    }
  }

 private:
  // The step known as splitmix64.
  std::uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31);
  }

  std::uint64_t state_;
};

}  // namespace velmar::sample
