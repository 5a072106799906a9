file(REMOVE_RECURSE
  "CMakeFiles/qelm.dir/src/elementwise/add_sub_matrix.cpp.o"
  "CMakeFiles/qelm.dir/src/elementwise/add_sub_matrix.cpp.o.d"
  "CMakeFiles/qelm.dir/src/frame/version.cpp.o"
  "CMakeFiles/qelm.dir/src/frame/version.cpp.o.d"
  "libqelm.pdb"
  "libqelm.so"
  "libqelm.so.7"
  "libqelm.so.7.0.0"
)

# Per-language clean rules from dependency scanning.
foreach(lang CXX)
  include(CMakeFiles/qelm.dir/cmake_clean_${lang}.cmake OPTIONAL)
endforeach()
