CMakeFiles/qelm.dir/src/frame/version.cpp.o: \
 /work/main/src/frame/version.cpp /usr/include/stdc-predef.h \
 /work/main/src/frame/export.h /work/main/include/qelm/qelm.h \
 /work/main/include/qelm/qelmtypes.h \
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
 /work/main/src/frame/checks.h /work/main/include/qelm/qelmtypes.h \
 /usr/include/c++/12/initializer_list \
 /usr/include/x86_64-linux-gnu/c++/12/bits/c++config.h \
 /usr/include/x86_64-linux-gnu/c++/12/bits/os_defines.h \
 /usr/include/x86_64-linux-gnu/c++/12/bits/cpu_defines.h \
 /usr/include/c++/12/pstl/pstl_config.h /work/main/src/frame/driver.h \
 /work/main/include/qelm/qelcore.h \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/omp.h \
 /usr/include/c++/12/cstddef \
 /usr/lib/gcc/x86_64-linux-gnu/12/include/stddef.h \
 /usr/include/c++/12/cstdint /usr/include/c++/12/tuple \
 /usr/include/c++/12/bits/stl_pair.h /usr/include/c++/12/type_traits \
 /usr/include/c++/12/bits/move.h /usr/include/c++/12/bits/utility.h \
 /usr/include/c++/12/compare /usr/include/c++/12/concepts \
 /usr/include/c++/12/bits/uses_allocator.h \
 /usr/include/c++/12/bits/invoke.h /work/main/src/frame/views.h
