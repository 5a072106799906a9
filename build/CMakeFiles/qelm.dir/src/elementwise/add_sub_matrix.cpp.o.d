CMakeFiles/qelm.dir/src/elementwise/add_sub_matrix.cpp.o: \
 /work/main/src/elementwise/add_sub_matrix.cpp /usr/include/stdc-predef.h \
 /work/main/src/elementwise/../frame/export.h \
 /work/main/include/qelm/qelm.h /work/main/include/qelm/qelmtypes.h \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/stdint.h /usr/include/stdint.h \
 /usr/include/x86_64-linux-gnu/bits/libc-header-start.h \
 /usr/include/features.h /usr/include/features-time64.h \
 /usr/include/x86_64-linux-gnu/bits/wordsize.h \
 /usr/include/x86_64-linux-gnu/bits/timesize.h \
 /usr/include/x86_64-linux-gnu/sys/cdefs.h \
 /usr/include/x86_64-linux-gnu/bits/long-double.h \
 /usr/include/x86_64-linux-gnu/gnu/stubs.h \
 /usr/include/x86_64-linux-gnu/gnu/stubs-64.h \
 /usr/include/x86_64-linux-gnu/bits/types.h \
 /usr/include/x86_64-linux-gnu/bits/typesizes.h \
 /usr/include/x86_64-linux-gnu/bits/time64.h \
 /usr/include/x86_64-linux-gnu/bits/wchar.h \
 /usr/include/x86_64-linux-gnu/bits/stdint-intn.h \
 /usr/include/x86_64-linux-gnu/bits/stdint-uintn.h \
 /work/main/src/elementwise/../frame/checks.h \
 /work/main/include/qelm/qelmtypes.h /usr/include/c++/12/initializer_list \
 /usr/include/x86_64-linux-gnu/c++/12/bits/c++config.h \
 /usr/include/x86_64-linux-gnu/c++/12/bits/os_defines.h \
 /usr/include/x86_64-linux-gnu/c++/12/bits/cpu_defines.h \
 /usr/include/c++/12/pstl/pstl_config.h \
 /work/main/src/elementwise/../frame/driver.h \
 /work/main/include/qelm/qelcore.h \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/omp.h \
 /usr/include/c++/12/cstddef \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/stddef.h \
 /usr/include/c++/12/cstdint /usr/include/c++/12/tuple \
 /usr/include/c++/12/bits/stl_pair.h /usr/include/c++/12/type_traits \
 /usr/include/c++/12/bits/move.h /usr/include/c++/12/bits/utility.h \
 /usr/include/c++/12/compare /usr/include/c++/12/concepts \
 /usr/include/c++/12/bits/uses_allocator.h \
 /usr/include/c++/12/bits/invoke.h \
 /work/main/src/elementwise/../frame/views.h \
 /work/main/src/elementwise/elementwise.h \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/smmintrin.h \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/tmmintrin.h \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/pmmintrin.h \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/emmintrin.h \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/xmmintrin.h \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/mmintrin.h \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/mm_malloc.h \
 /usr/include/c++/12/stdlib.h /usr/include/c++/12/cstdlib \
 /usr/include/stdlib.h /usr/include/x86_64-linux-gnu/bits/waitflags.h \
 /usr/include/x86_64-linux-gnu/bits/waitstatus.h \
 /usr/include/x86_64-linux-gnu/bits/floatn.h \
 /usr/include/x86_64-linux-gnu/bits/floatn-common.h \
 /usr/include/x86_64-linux-gnu/bits/types/locale_t.h \
 /usr/include/x86_64-linux-gnu/bits/types/__locale_t.h \
 /usr/include/x86_64-linux-gnu/sys/types.h \
 /usr/include/x86_64-linux-gnu/bits/types/clock_t.h \
 /usr/include/x86_64-linux-gnu/bits/types/clockid_t.h \
 /usr/include/x86_64-linux-gnu/bits/types/time_t.h \
 /usr/include/x86_64-linux-gnu/bits/types/timer_t.h /usr/include/endian.h \
 /usr/include/x86_64-linux-gnu/bits/endian.h \
 /usr/include/x86_64-linux-gnu/bits/endianness.h \
 /usr/include/x86_64-linux-gnu/bits/byteswap.h \
 /usr/include/x86_64-linux-gnu/bits/uintn-identity.h \
 /usr/include/x86_64-linux-gnu/sys/select.h \
 /usr/include/x86_64-linux-gnu/bits/select.h \
 /usr/include/x86_64-linux-gnu/bits/types/sigset_t.h \
 /usr/include/x86_64-linux-gnu/bits/types/__sigset_t.h \
 /usr/include/x86_64-linux-gnu/bits/types/struct_timeval.h \
 /usr/include/x86_64-linux-gnu/bits/types/struct_timespec.h \
 /usr/include/x86_64-linux-gnu/bits/pthreadtypes.h \
 /usr/include/x86_64-linux-gnu/bits/thread-shared-types.h \
 /usr/include/x86_64-linux-gnu/bits/pthreadtypes-arch.h \
 /usr/include/x86_64-linux-gnu/bits/atomic_wide_counter.h \
 /usr/include/x86_64-linux-gnu/bits/struct_mutex.h \
 /usr/include/x86_64-linux-gnu/bits/struct_rwlock.h /usr/include/alloca.h \
 /usr/include/x86_64-linux-gnu/bits/stdlib-bsearch.h \
 /usr/include/x86_64-linux-gnu/bits/stdlib-float.h \
 /usr/include/c++/12/bits/std_abs.h \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/mwaitintrin.h \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/popcntintrin.h
