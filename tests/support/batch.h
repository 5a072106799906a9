// Test data in every description at once. A Batch holds `count` objects of
// rows x cols elements in one canary-filled block, and describes that same
// memory three ways: standard (pointer and strides), _L (object pointers with a
// roi shift) and _P (element pointers with a roi shift and the object stride).
// So one result can be checked against one reference, whatever the description.
#pragma once

#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace qt {

enum class Form {
  Packed,        // rows back to back, objects back to back
  Pitch16,       // rows and objects at multiples of 16 bytes, 16-byte aligned base
  RowGaps,       // a gap after every row and object
  ColumnMajor,   // stride1 is the element size: stride2 != element, general kernels
  ElementGaps,   // a gap between elements of a row: general kernels
  Unaligned,     // packed, base one element off 16-byte alignment
};
const char* formName(Form f);
inline const std::vector<Form>& allForms() {
  static const std::vector<Form> forms = {Form::Packed, Form::Pitch16, Form::RowGaps,
                                          Form::ColumnMajor, Form::ElementGaps, Form::Unaligned};
  return forms;
}

constexpr unsigned char kCanary = 0xA5;

template <class T>
class Batch {
 public:
  // `skew` moves the whole block by that many bytes, to place an operand at a
  // chosen address (even one that is no multiple of the element size).
  Batch(int rows, int cols, int count, Form form = Form::Packed, int skew = 0)
      : rows_(rows), cols_(cols), count_(count) {
    const int e = sizeof(T);
    switch (form) {
      case Form::Packed:
      case Form::Unaligned: s2 = e; s1 = e * cols; s0 = s1 * rows; break;
      case Form::Pitch16: s2 = e; s1 = (e * cols + 15) / 16 * 16; s0 = (s1 * rows + 15) / 16 * 16; break;
      case Form::RowGaps: s2 = e; s1 = e * (cols + 1); s0 = s1 * rows + 3 * e; break;
      case Form::ColumnMajor: s1 = e; s2 = e * (rows + 1); s0 = s2 * cols + 2 * e; break;
      case Form::ElementGaps: s2 = 2 * e; s1 = 2 * e * cols + e; s0 = s1 * rows + e; break;
    }
    const size_t span = size_t(count - 1) * s0 + size_t(rows - 1) * s1 + size_t(cols - 1) * s2 + e;
    bytes_.assign(kFront + span + kBack + 64, kCanary);
    size_t start = (64 - reinterpret_cast<uintptr_t>(bytes_.data()) % 64) % 64 + kFront;
    if (form == Form::Unaligned) start += e;
    start += skew;
    base_ = bytes_.data() + start;
    for (int n = 0; n < count; ++n) list_.push_back(reinterpret_cast<T*>(base_ + size_t(n) * s0 - listShift));
    for (int i = 0; i < rows; ++i)
      for (int j = 0; j < cols; ++j)
        elems_.push_back(reinterpret_cast<T*>(base_ + size_t(i) * s1 + size_t(j) * s2 - elemShift));
    elemsAfterOne_.assign(1, nullptr);
    elemsAfterOne_.insert(elemsAfterOne_.end(), elems_.begin(), elems_.end());
  }

  int rows() const { return rows_; }
  int cols() const { return cols_; }
  int count() const { return count_; }

  T& at(int n, int i, int j) { return *reinterpret_cast<T*>(base_ + offset(n, i, j)); }
  T at(int n, int i, int j) const { return *reinterpret_cast<const T*>(base_ + offset(n, i, j)); }
  // By bytes, so a skewed block is read and written without misaligned access.
  T get(int n, int i, int j) const {
    T v;
    std::memcpy(&v, base_ + offset(n, i, j), sizeof(T));
    return v;
  }
  void set(int n, int i, int j, T v) { std::memcpy(base_ + offset(n, i, j), &v, sizeof(T)); }
  uintptr_t address(int n, int i = 0, int j = 0) const { return reinterpret_cast<uintptr_t>(base_ + offset(n, i, j)); }

  // Standard description.
  T* ptr() { return reinterpret_cast<T*>(base_); }
  int s0 = 0, s1 = 0, s2 = 0;
  // _L description: list()[n] + listShift is object n.
  T* const* list() { return list_.data(); }
  static constexpr int listShift = 2 * sizeof(T);
  // _P description: elems()[i*cols + j] + elemShift + n*s0 is element (i, j) of object n.
  // The list lies where the allocator put it, or, with `elemsOneOn`, one entry
  // further (8 bytes off that alignment).
  T* const* elems() const { return elemsOneOn ? elemsAfterOne_.data() + 1 : elems_.data(); }
  bool elemsOneOn = false;
  static constexpr int elemShift = 3 * sizeof(T);

  void fillRandom(uint32_t seed, double lo = -4.0, double hi = 4.0) {
    std::mt19937 rng(seed);
    std::uniform_real_distribution<double> dist(lo, hi);
    for (int n = 0; n < count_; ++n)
      for (int i = 0; i < rows_; ++i)
        for (int j = 0; j < cols_; ++j) set(n, i, j, T(dist(rng)));
  }
  void fill(T v) {
    for (int n = 0; n < count_; ++n)
      for (int i = 0; i < rows_; ++i)
        for (int j = 0; j < cols_; ++j) set(n, i, j, v);
  }
  // Every element back to the canary pattern.
  void fillCanary() {
    for (int n = 0; n < count_; ++n)
      for (int i = 0; i < rows_; ++i)
        for (int j = 0; j < cols_; ++j) std::memset(base_ + offset(n, i, j), kCanary, sizeof(T));
  }
  // No byte outside the described elements has changed.
  bool outsideIntact() const {
    std::vector<char> mine(bytes_.size(), 0);
    for (int n = 0; n < count_; ++n)
      for (int i = 0; i < rows_; ++i)
        for (int j = 0; j < cols_; ++j)
          std::memset(&mine[base_ - bytes_.data() + offset(n, i, j)], 1, sizeof(T));
    for (size_t k = 0; k < bytes_.size(); ++k)
      if (!mine[k] && bytes_[k] != kCanary) return false;
    return true;
  }
  // Nothing at all has been written since the block was made or fillCanary'd.
  bool untouched() const {
    for (unsigned char b : bytes_)
      if (b != kCanary) return false;
    return true;
  }
  std::vector<T> values() const {
    std::vector<T> v;
    for (int n = 0; n < count_; ++n)
      for (int i = 0; i < rows_; ++i)
        for (int j = 0; j < cols_; ++j) v.push_back(get(n, i, j));
    return v;
  }

 private:
  size_t offset(int n, int i, int j) const { return size_t(n) * s0 + size_t(i) * s1 + size_t(j) * s2; }
  static constexpr size_t kFront = 64, kBack = 64;
  int rows_, cols_, count_;
  std::vector<unsigned char> bytes_;
  unsigned char* base_ = nullptr;
  std::vector<T*> list_, elems_, elemsAfterOne_;
};

// Bitwise equality of two value lists, so NaN and -0 compare as stored.
template <class T>
bool sameBits(const std::vector<T>& a, const std::vector<T>& b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

inline const char* formName(Form f) {
  switch (f) {
    case Form::Packed: return "packed";
    case Form::Pitch16: return "pitch16";
    case Form::RowGaps: return "rowgaps";
    case Form::ColumnMajor: return "colmajor";
    case Form::ElementGaps: return "elemgaps";
    case Form::Unaligned: return "unaligned";
  }
  return "?";
}

}  // namespace qt
