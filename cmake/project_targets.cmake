# What all targets share: includes from the root of the tree, and warnings that are errors.
add_library(project_includes INTERFACE)
target_include_directories(project_includes INTERFACE ${PROJECT_SOURCE_DIR})

add_library(project_warnings INTERFACE)
target_compile_options(project_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
# GCC 12 takes string + text for overlapping memory (GCC bug 105651) and a moved variant for one not set (105562).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(project_warnings INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
endif()
