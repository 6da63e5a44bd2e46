# The few functions by which every room, program and test program is declared.

add_library(quill_flags INTERFACE)
target_compile_options(quill_flags INTERFACE
  -Wall -Wextra -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
  $<$<BOOL:${QUILL_WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(quill_flags INTERFACE
  QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_CAST_FROM_ASCII QUILL_VERSION="${PROJECT_VERSION}")
target_include_directories(quill_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(QUILL_SANITIZE)
  set(quill_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_compile_options(quill_flags INTERFACE ${quill_sanitizers})
  target_link_options(quill_flags INTERFACE ${quill_sanitizers})
endif()

if(QUILL_FUZZ)
  target_compile_options(quill_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# quill_add_headers(NAME LINKS LIBRARIES ... HEADERS ...): headers that are compiled once, for every
# target that reuses them. Each compiled set takes some 250 MB on disk, so there is one per kind of
# target, not one per target.
function(quill_add_headers name)
  cmake_parse_arguments(HEADERS "" "" "LINKS;HEADERS" ${ARGN})
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/${name}.cpp CONTENT "")
  add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/${name}.cpp)
  target_link_libraries(${name} PRIVATE ${HEADERS_LINKS} quill_flags)
  target_precompile_headers(${name} PRIVATE
    ${HEADERS_HEADERS} <functional> <memory> <optional> <vector>)
endfunction()

if(QUILL_PRECOMPILED_HEADERS)
  quill_add_headers(quill_headers_core LINKS Qt6::Core HEADERS <QtCore>)
  quill_add_headers(quill_headers_gui LINKS Qt6::Gui HEADERS <QtGui>)
  quill_add_headers(quill_headers_ui LINKS Qt6::Widgets HEADERS <QtWidgets>)
endif()
if(QUILL_PRECOMPILED_HEADERS AND QUILL_TESTS)
  find_package(GTest REQUIRED)
  quill_add_headers(quill_headers_core_tests
    LINKS Qt6::Core GTest::gmock HEADERS <QtCore> <gmock/gmock.h>)
  quill_add_headers(quill_headers_gui_tests
    LINKS Qt6::Gui GTest::gmock HEADERS <QtGui> <gmock/gmock.h>)
  quill_add_headers(quill_headers_ui_tests
    LINKS Qt6::Widgets GTest::gmock HEADERS <QtWidgets> <gmock/gmock.h>)
endif()

# quill_precompile(TARGET core|gui|ui, or one of these with _tests): the headers that nearly every
# file of such a target includes.
function(quill_precompile target kind)
  if(QUILL_PRECOMPILED_HEADERS)
    target_precompile_headers(${target} REUSE_FROM quill_headers_${kind})
  endif()
endfunction()

# quill_add_room(NAME core|gui|ui SOURCES ... LINKS ...): one folder, one static library.
function(quill_add_room name kind)
  cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_link_libraries(${name} PUBLIC ${ROOM_LINKS} PRIVATE quill_flags)
  quill_precompile(${name} ${kind})
endfunction()

# quill_add_tests(NAME core|gui|ui SOURCES ... LINKS ...): one test program; every test in it is a test
# of ctest. A core program runs under QCoreApplication, a gui one under an offscreen QGuiApplication,
# and both are checked not to load Widgets; an ui program runs under an offscreen QApplication.
function(quill_add_tests name kind)
  cmake_parse_arguments(TESTS "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${TESTS_SOURCES})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE
    ${TESTS_LINKS} quill_test_support quill_test_main_${kind} GTest::gmock GTest::gtest quill_flags)
  quill_precompile(${name} ${kind}_tests)
  gtest_discover_tests(${name} NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60
    PROPERTIES LABELS unit TIMEOUT 120)
  if(NOT kind STREQUAL "ui")
    quill_add_no_widgets_check(${name})
  endif()
endfunction()

# A test that this program does not load Qt's Widgets.
function(quill_add_no_widgets_check target)
  add_test(NAME NoWidgets.${target}
    COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:${target}>
            -P ${CMAKE_SOURCE_DIR}/tests/support/NoWidgets.cmake)
  set_tests_properties(NoWidgets.${target} PROPERTIES LABELS check)
endfunction()
