// Calls an export of any argument list from a queue of values. A test pushes
// the arguments it means to pass, in order (pointers, ints, element values);
// callWith takes the export's own parameter types and pops one value for each,
// failing the test if the kinds don't line up. So a whole family can be driven
// from one table while every call still goes through the real prototype.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <tuple>
#include <type_traits>

namespace qt {

class Feed {
 public:
  enum class Slot { Pointer, Int, Value };
  struct Item {
    Slot slot;
    const void* p;
    long long i;
    long double v;
  };

  Feed& ptr(const void* p) { items_.push_back({Slot::Pointer, p, 0, 0}); return *this; }
  Feed& num(long long i) { items_.push_back({Slot::Int, nullptr, i, 0}); return *this; }
  Feed& val(long double v) { items_.push_back({Slot::Value, nullptr, 0, v}); return *this; }

  template <class P>
  P next() {
    if (items_.empty()) {
      ADD_FAILURE() << "argument list longer than the values pushed";
      return P{};
    }
    Item it = items_.front();
    items_.pop_front();
    if constexpr (std::is_pointer_v<P>) {
      EXPECT_EQ(it.slot, Slot::Pointer) << "expected a pointer argument";
      return reinterpret_cast<P>(const_cast<void*>(it.p));
    } else if constexpr (std::is_floating_point_v<P>) {
      EXPECT_EQ(it.slot, Slot::Value) << "expected an element value argument";
      return static_cast<P>(it.v);
    } else {
      EXPECT_EQ(it.slot, Slot::Int) << "expected an integer argument";
      return static_cast<P>(it.i);
    }
  }
  bool empty() const { return items_.empty(); }

 private:
  std::deque<Item> items_;
};

template <class R, class... P>
R callWith(R (*fn)(P...), Feed& feed) {
  std::tuple<P...> args{feed.next<P>()...};  // braces: popped left to right
  EXPECT_TRUE(feed.empty()) << "more values pushed than the argument list takes";
  return std::apply(fn, args);
}

}  // namespace qt
