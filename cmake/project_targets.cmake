# What all targets share: includes from the root of the tree, and warnings.
add_library(project_includes INTERFACE)
target_include_directories(project_includes INTERFACE ${PROJECT_SOURCE_DIR})

add_library(project_warnings INTERFACE)
target_compile_options(project_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
# Where several sources are compiled as one, local names may be those of another source, and classes of one source have
# members of its unnamed namespace.
if(NOT CMAKE_UNITY_BUILD)
  target_compile_options(project_warnings INTERFACE -Wshadow)
elseif(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(project_warnings INTERFACE -Wno-subobject-linkage)
endif()
if(ZOL_WERROR)
  target_compile_options(project_warnings INTERFACE -Werror)
endif()
# GCC 12 takes string + text for overlapping memory (GCC bug 105651) and a moved variant for one not set (105562).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(project_warnings INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
endif()

# zol_library(NAME SOURCES ... PUBLIC ... PRIVATE ...): the static library zol_NAME, ZOL::NAME to those that link it.
function(zol_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;PUBLIC;PRIVATE")
  add_library(zol_${name} STATIC ${arg_SOURCES})
  add_library(ZOL::${name} ALIAS zol_${name})
  target_link_libraries(zol_${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE} project_warnings)
endfunction()

# The sources in window/ of a topic, by their kind. Windows use forms and operations of one another, never handlers, so
# that the three kinds are three libraries, each of which links the one before.
function(zol_windows)
  file(GLOB forms CONFIGURE_DEPENDS window/*_form.cpp)
  file(GLOB handlers CONFIGURE_DEPENDS window/*_handlers.cpp)
  file(GLOB operations CONFIGURE_DEPENDS window/*.cpp)
  list(REMOVE_ITEM operations ${forms} ${handlers})
  target_sources(zol_forms PRIVATE ${forms})
  target_sources(zol_operations PRIVATE ${operations})
  target_sources(zol_windows PRIVATE ${handlers})
endfunction()
