include(CMakeFindDependencyMacro)
find_dependency(OpenMP)
include(${CMAKE_CURRENT_LIST_DIR}/qelmTargets.cmake)
