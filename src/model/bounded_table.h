#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "platform/error.h"

namespace velmar {

/// A table whose size is a limit of the design. Elements are numbered from 1; the first one too
/// many, and a number that no element has, raise error 9.
template <typename Element, std::size_t kMost>
class BoundedTable {
 public:
  void Add(Element element) {
    if (elements_.size() == kMost) {
      throw RunTimeError(ErrorNumber::kSubscript, "a table is full");
    }
    elements_.push_back(std::move(element));
  }

  const Element& operator[](std::size_t number) const {
    if (number < 1 || number > elements_.size()) {
      throw RunTimeError(ErrorNumber::kSubscript, "a number outside a table");
    }
    return elements_[number - 1];
  }

  /// Another element in place of one; its number has to be there, as for reading.
  void Replace(std::size_t number, Element element) {
    static_cast<void>((*this)[number]);
    elements_[number - 1] = std::move(element);
  }

  std::size_t size() const { return elements_.size(); }
  bool empty() const { return elements_.empty(); }
  void Clear() { elements_.clear(); }
  auto begin() const { return elements_.begin(); }
  auto end() const { return elements_.end(); }

 private:
  std::vector<Element> elements_;
};

}  // namespace velmar
