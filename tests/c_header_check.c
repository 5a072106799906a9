/* The public headers compile as C99 and serve a C caller: a caller's own
   non-const pointer arrays go to _L and _P functions without a cast. */
#include <qelm/qelm.h>
#include <stdio.h>
#include <string.h>

int main(void) {
    Qel32f a[4] = {1, 2, 3, 4}, b[4] = {10, 20, 30, 40}, d[4] = {0, 0, 0, 0};
    Qel32f* srcList[1] = {a};
    Qel32f* dstList[1] = {d};
    const QelLibraryVersion* v = qelmGetLibVersion();
    QelStatus st = qelmAdd_mam_32f_L(srcList, 0, 8, 4, b, 8, 4, dstList, 0, 8, 4, 2, 2, 1);
    if (st != qelStatusOk || d[0] != 11 || d[3] != 44) {
        printf("qelmAdd_mam_32f_L gave %d: %g %g\n", (int)st, d[0], d[3]);
        return 1;
    }
    if (v->major != 7 || strcmp(v->version, "7.0 build 205.58") != 0) return 1;
    return 0;
}
