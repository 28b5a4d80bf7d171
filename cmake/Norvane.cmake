# What every target of the project shares, and the three functions that declare one.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

find_program(NORVANE_CCACHE ccache)
if(NORVANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${NORVANE_CCACHE}")
endif()

add_library(norvane_options INTERFACE)
target_compile_options(norvane_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast -Werror
  # GCC 12 sees overlaps in "literal" + std::string that are not there.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_compile_definitions(norvane_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CONTEXTLESS_CONNECT QT_NO_KEYWORDS
  NORVANE_VERSION="${PROJECT_VERSION}")
if(NORVANE_SANITIZE)
  target_compile_options(norvane_options INTERFACE
    -fsanitize=${NORVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(norvane_options INTERFACE -fsanitize=${NORVANE_SANITIZE})
endif()
find_program(NORVANE_MOLD mold)
if(NORVANE_MOLD)
  target_link_options(norvane_options INTERFACE -fuse-ld=mold)
endif()

# norvane_house(base SOURCES a.cpp ... LINKS norvane_x ...)
# One house: a static library norvane_<name>, its public headers under include/<name>.
# A house sees the headers of those it names in LINKS and of no others.
function(norvane_house name)
  cmake_parse_arguments(A "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  add_library(norvane_${name} STATIC ${A_SOURCES})
  target_include_directories(norvane_${name}
    PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}/include"
    PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(norvane_${name} PUBLIC ${A_LINKS} PRIVATE norvane_options ${A_PRIVATE_LINKS})
endfunction()

# norvane_gtest(test_base SOURCES a.cpp ... LINKS norvane_x ...)
# A GoogleTest program, its cases known to ctest one by one. Files under tests/donnees are
# found at run time through NORVANE_DONNEES.
function(norvane_gtest name)
  cmake_parse_arguments(A "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${A_SOURCES})
  target_link_libraries(${name} PRIVATE ${A_LINKS} norvane_options GTest::gtest_main)
  target_compile_definitions(${name} PRIVATE
    NORVANE_DONNEES="${PROJECT_SOURCE_DIR}/tests/donnees"
    NORVANE_DATA="${PROJECT_SOURCE_DIR}/data")
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()

# norvane_qtest(test_page SOURCES a.cpp ... LINKS norvane_ui ...)
# A Qt Test program run as one ctest entry on the offscreen platform.
function(norvane_qtest name)
  cmake_parse_arguments(A "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${A_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PRIVATE ${A_LINKS} norvane_options Qt6::Test)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 300 LABELS ui
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0")
endfunction()
