// What the solvers of the decomposition families share: the three shapes of a
// solve, the element type behind a view, and the switch between the fixed
// forms of orders 3..6 and the general form.
#pragma once

#include <type_traits>
#include <utility>

namespace qel {

template <class V>
using ElemOf = std::remove_const_t<std::remove_reference_t<decltype(std::declval<V>().at(0, 0))>>;

// mv: one matrix, one right-hand side; mva: one matrix, an array of right-hand
// sides; mava: an array of matrices, each with its own right-hand side.
enum class SolveShape { Mv, Mva, Mava };

// Calls fixed(integral_constant<N>) for orders 3..6, general() for the rest,
// and answers what the chosen one answers.
template <class Fixed, class General>
inline auto bySize(int size, Fixed fixed, General general) {
  switch (size) {
    case 3: return fixed(std::integral_constant<int, 3>{});
    case 4: return fixed(std::integral_constant<int, 4>{});
    case 5: return fixed(std::integral_constant<int, 5>{});
    case 6: return fixed(std::integral_constant<int, 6>{});
    default: return general();
  }
}

}  // namespace qel
