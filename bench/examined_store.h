#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>

#include "made_store.h"

namespace velmar::bench {

/// The store of a benchmark whose argument is the rows of the library, and the log that is examined
/// in it.

inline std::size_t Logs(const benchmark::State& state) {
  constexpr std::size_t kQsosOfALog = 124;
  return static_cast<std::size_t>(state.range(0)) / kQsosOfALog;
}

inline MadeStore StoreOf(const benchmark::State& state) {
  return MakeStore(static_cast<std::size_t>(state.range(0)), Logs(state));
}

/// By its number from 0: a log in the middle of the library.
inline std::size_t Examined(const benchmark::State& state) {
  return Logs(state) / 2;
}

}  // namespace velmar::bench
