// The few LAPACK routines that the benchmarks call. All arguments are passed by reference.
#pragma once

extern "C" {

void dsyev_(const char* jobz, const char* uplo, const int* n, double* a, const int* lda, double* w, double* work,
            const int* lwork, int* info);
void dgesvd_(const char* jobu, const char* jobvt, const int* m, const int* n, double* a, const int* lda, double* s,
             double* u, const int* ldu, double* vt, const int* ldvt, double* work, const int* lwork, int* info);
void dgetrf_(const int* m, const int* n, double* a, const int* lda, int* pivots, int* info);
void dgetri_(const int* n, double* a, const int* lda, const int* pivots, double* work, const int* lwork, int* info);
void dpotrf_(const char* uplo, const int* n, double* a, const int* lda, int* info);
void dgels_(const char* trans, const int* m, const int* n, const int* nrhs, double* a, const int* lda, double* b,
            const int* ldb, double* work, const int* lwork, int* info);
}
