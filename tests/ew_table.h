// The element-wise exports as a table: each row names an export, its operands
// (kind, transposition), its layout and type, its check order, and the function.
// Rows are generated per shape by one macro line, so the table can be read
// against the library's list of names.
#pragma once

#include <qelm/qelm.h>

#include "feed.h"

#include <string>
#include <vector>

namespace ew {

enum Kind { ARR, ONE, VARR, VONE, CON, CAR };
enum Lay { S, L, P };

struct Export {
  std::string name;
  char op;          // '+' or '-'
  Kind ka; bool ta;  // operand A (the first in the shape)
  Kind kb; bool tb;  // operand B
  bool constFirst;  // A is a constant passed after the vector (cv, cav, cva, cava)
  Lay lay;
  bool f64;
  QelStatus (*call)(qt::Feed&);
  std::string order;  // check groups in order
};

inline bool isArray(Kind k) { return k == ARR || k == VARR || k == CAR; }
inline bool isVector(Kind k) { return k == VARR || k == VONE; }
inline bool isConst(Kind k) { return k == CON || k == CAR; }

#define EW_ROW(NAME, OP, KA, TA, KB, TB, CF, LAY, F64, ORDER) \
  Export{#NAME, OP, KA, TA, KB, TB, CF, LAY, F64, [](qt::Feed& f) { return qt::callWith(&qelm##NAME, f); }, ORDER}

// A shape with count: standard, _L and _P in both types.
#define EW_ARRAY(OP, SYM, SH, ORD_S, ORD_L, ORD_P, KA, TA, KB, TB, CF)                     \
  EW_ROW(OP##_##SH##_32f, SYM, KA, TA, KB, TB, CF, S, false, ORD_S),                       \
      EW_ROW(OP##_##SH##_32f_L, SYM, KA, TA, KB, TB, CF, L, false, ORD_L),                 \
      EW_ROW(OP##_##SH##_32f_P, SYM, KA, TA, KB, TB, CF, P, false, ORD_P),                 \
      EW_ROW(OP##_##SH##_64f, SYM, KA, TA, KB, TB, CF, S, true, ORD_S),                    \
      EW_ROW(OP##_##SH##_64f_L, SYM, KA, TA, KB, TB, CF, L, true, ORD_L),                  \
      EW_ROW(OP##_##SH##_64f_P, SYM, KA, TA, KB, TB, CF, P, true, ORD_P)
// A shape without count: standard and _P in both types.
#define EW_SINGLE(OP, SYM, SH, KA, TA, KB, TB, CF)                   \
  EW_ROW(OP##_##SH##_32f, SYM, KA, TA, KB, TB, CF, S, false, "NZS"), \
      EW_ROW(OP##_##SH##_32f_P, SYM, KA, TA, KB, TB, CF, P, false, "NZR"), \
      EW_ROW(OP##_##SH##_64f, SYM, KA, TA, KB, TB, CF, S, true, "NZS"),    \
      EW_ROW(OP##_##SH##_64f_P, SYM, KA, TA, KB, TB, CF, P, true, "NZR")

inline std::vector<Export> matrixExports() {
  return {
      EW_SINGLE(Add, '+', mm, ONE, false, ONE, false, false),
      EW_SINGLE(Add, '+', tm, ONE, true, ONE, false, false),
      EW_SINGLE(Add, '+', tt, ONE, true, ONE, true, false),
      EW_ARRAY(Add, '+', mam, "NCSZ", "NCZSR", "NCZSR", ARR, false, ONE, false, false),
      EW_ARRAY(Add, '+', mat, "NCZS", "NCZSR", "NCZSR", ARR, false, ONE, true, false),
      EW_ARRAY(Add, '+', tam, "NCZS", "NCZSR", "NCZSR", ARR, true, ONE, false, false),
      EW_ARRAY(Add, '+', tat, "NCZS", "NCZSR", "NCZSR", ARR, true, ONE, true, false),
      EW_ARRAY(Add, '+', mama, "NCZS", "NCZSR", "NCZSR", ARR, false, ARR, false, false),
      EW_ARRAY(Add, '+', tama, "NCZS", "NCZSR", "NCZSR", ARR, true, ARR, false, false),
      EW_ARRAY(Add, '+', tata, "NCZS", "NCZSR", "NCZSR", ARR, true, ARR, true, false),
      EW_SINGLE(Sub, '-', mm, ONE, false, ONE, false, false),
      EW_SINGLE(Sub, '-', mt, ONE, false, ONE, true, false),
      EW_SINGLE(Sub, '-', tm, ONE, true, ONE, false, false),
      EW_SINGLE(Sub, '-', tt, ONE, true, ONE, true, false),
      EW_ARRAY(Sub, '-', mam, "NCSZ", "NCZSR", "NCZSR", ARR, false, ONE, false, false),
      EW_ARRAY(Sub, '-', mat, "NCZS", "NCZSR", "NCZSR", ARR, false, ONE, true, false),
      EW_ARRAY(Sub, '-', tam, "NCZS", "NCZSR", "NCZSR", ARR, true, ONE, false, false),
      EW_ARRAY(Sub, '-', tat, "NCZS", "NCZSR", "NCZSR", ARR, true, ONE, true, false),
      EW_ARRAY(Sub, '-', mma, "NCSZ", "NCZSR", "NCZSR", ONE, false, ARR, false, false),
      EW_ARRAY(Sub, '-', mta, "NCZS", "NCZSR", "NCZSR", ONE, false, ARR, true, false),
      EW_ARRAY(Sub, '-', tma, "NCZS", "NCZSR", "NCZSR", ONE, true, ARR, false, false),
      EW_ARRAY(Sub, '-', tta, "NCZS", "NCZSR", "NCZSR", ONE, true, ARR, true, false),
      EW_ARRAY(Sub, '-', mama, "NCZS", "NCZSR", "NCZSR", ARR, false, ARR, false, false),
      EW_ARRAY(Sub, '-', mata, "NCZS", "NCZSR", "NCZSR", ARR, false, ARR, true, false),
      EW_ARRAY(Sub, '-', tama, "NCZS", "NCZSR", "NCZSR", ARR, true, ARR, false, false),
      EW_ARRAY(Sub, '-', tata, "NCZS", "NCZSR", "NCZSR", ARR, true, ARR, true, false),
  };
}

// Vectors and constants. Orders of the _P column may differ between the types,
// so those shapes are spelled out row by row.
#define EW_VROW6(OP, SYM, SH, O32, O32L, O32P, O64, O64L, O64P, KA, KB, CF)  \
  EW_ROW(OP##_##SH##_32f, SYM, KA, false, KB, false, CF, S, false, O32),     \
      EW_ROW(OP##_##SH##_32f_L, SYM, KA, false, KB, false, CF, L, false, O32L), \
      EW_ROW(OP##_##SH##_32f_P, SYM, KA, false, KB, false, CF, P, false, O32P), \
      EW_ROW(OP##_##SH##_64f, SYM, KA, false, KB, false, CF, S, true, O64),      \
      EW_ROW(OP##_##SH##_64f_L, SYM, KA, false, KB, false, CF, L, true, O64L),   \
      EW_ROW(OP##_##SH##_64f_P, SYM, KA, false, KB, false, CF, P, true, O64P)
#define EW_VARRAY(OP, SYM, SH, KA, KB, CF) \
  EW_VROW6(OP, SYM, SH, "NCZS", "NCZSR", "NCZSR", "NCZS", "NCZSR", "NCZSR", KA, KB, CF)

inline std::vector<Export> vectorExports() {
  return {
      EW_SINGLE(Add, '+', vv, VONE, false, VONE, false, false),
      EW_SINGLE(Add, '+', vc, VONE, false, CON, false, false),
      EW_VROW6(Add, '+', vav, "NZSC", "NZSRC", "NZSCR", "NZSC", "NZSRC", "NZSCR", VARR, VONE, false),
      EW_VARRAY(Add, '+', vac, VARR, CON, false),
      EW_VROW6(Add, '+', vca, "NCZS", "NCZSR", "NCZSR", "NCZS", "NCZSR", "NCZS", VONE, CAR, false),
      EW_VARRAY(Add, '+', vava, VARR, VARR, false),
      EW_VARRAY(Add, '+', vaca, VARR, CAR, false),
      EW_SINGLE(Sub, '-', vv, VONE, false, VONE, false, false),
      EW_SINGLE(Sub, '-', vc, VONE, false, CON, false, false),
      EW_SINGLE(Sub, '-', cv, CON, false, VONE, false, true),
      EW_VROW6(Sub, '-', vav, "NZSC", "NZSRC", "NZSCR", "NZSC", "NZSRC", "NZSCR", VARR, VONE, false),
      EW_VARRAY(Sub, '-', vva, VONE, VARR, false),
      EW_VARRAY(Sub, '-', vac, VARR, CON, false),
      EW_VARRAY(Sub, '-', vca, VONE, CAR, false),
      EW_VARRAY(Sub, '-', vava, VARR, VARR, false),
      EW_VARRAY(Sub, '-', vaca, VARR, CAR, false),
      EW_VROW6(Sub, '-', cav, "NCZS", "NCZSR", "NCZS", "NCZS", "NCZSR", "NCZSR", CAR, VONE, true),
      EW_VARRAY(Sub, '-', cva, CON, VARR, true),
      EW_VARRAY(Sub, '-', cava, CAR, VARR, true),
  };
}

}  // namespace ew
