/* A C program using an installed qelm: factor 1000 diagonally dominant 4x4
   systems with one call, solve them with another, and check the residuals. */
#include <math.h>
#include <stdio.h>
#include <qelm/qelm.h>

enum { N = 4, COUNT = 1000 };

static float a[COUNT][N][N], lu[COUNT][N][N], b[COUNT][N], x[COUNT][N];
static Qel32s pivots[COUNT * N];

int main(void) {
    const int row = N * (int)sizeof(float), mat = N * row, e = (int)sizeof(float);
    double worst = 0;
    QelStatus st;
    int n, i, j;
    for (n = 0; n < COUNT; ++n)
        for (i = 0; i < N; ++i) {
            for (j = 0; j < N; ++j) a[n][i][j] = (float)((n * 7 + i * 5 + j * 3) % 11) - 5.0f;
            a[n][i][i] += 20.0f;
            b[n][i] = (float)(i + 1);
        }
    st = qelmLUDecomp_ma_32f(&a[0][0][0], mat, row, e, pivots, &lu[0][0][0], mat, row, e, N, COUNT);
    if (st != qelStatusOk) { printf("LUDecomp: status %d\n", (int)st); return 1; }
    st = qelmLUBackSubst_mava_32f(&lu[0][0][0], mat, row, e, pivots, &b[0][0], row, e, &x[0][0], row, e, N, COUNT);
    if (st != qelStatusOk) { printf("LUBackSubst: status %d\n", (int)st); return 1; }
    for (n = 0; n < COUNT; ++n)
        for (i = 0; i < N; ++i) {
            double r = -b[n][i];
            for (j = 0; j < N; ++j) r += (double)a[n][i][j] * x[n][j];
            if (fabs(r) > worst) worst = fabs(r);
        }
    printf("%d systems of order %d solved, worst residual %.2g\n", COUNT, N, worst);
    return worst < 1e-4 ? 0 : 1;
}
