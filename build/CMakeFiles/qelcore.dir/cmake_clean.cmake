file(REMOVE_RECURSE
  "CMakeFiles/qelcore.dir/qelcore/qelcore.cpp.o"
  "CMakeFiles/qelcore.dir/qelcore/qelcore.cpp.o.d"
  "libqelcore.pdb"
  "libqelcore.so"
  "libqelcore.so.7"
  "libqelcore.so.7.0.0"
)

# Per-language clean rules from dependency scanning.
foreach(lang CXX)
  include(CMakeFiles/qelcore.dir/cmake_clean_${lang}.cmake OPTIONAL)
endforeach()
