# One function per kind of target, so that a directory's own CMakeLists.txt stays a list of files.
#
#   mainframe_library(NAME SHARED|STATIC|OBJECT SOURCES... [PUBLIC_DEPS ...] [PRIVATE_DEPS ...])
#   mainframe_plugin(NAME OUTPUT libname SOURCES... [DEPS ...])
#   mainframe_test(NAME LABEL unit|gui|system SOURCES... [DEPS ...])

add_library(mainframe_options INTERFACE)
target_compile_features(mainframe_options INTERFACE cxx_std_17)
target_compile_options(mainframe_options INTERFACE -Wall -Wextra -Wshadow -Wpedantic -Werror)
target_compile_definitions(mainframe_options INTERFACE
    QT_NO_FOREACH QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00 QT_DEPRECATED_WARNINGS)
set_target_properties(mainframe_options PROPERTIES EXPORT_NAME options)

option(MAINFRAME_ASAN "Build with the address and undefined behaviour sanitizers" OFF)
if(MAINFRAME_ASAN)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
endif()

function(mainframe_library name kind)
    cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC_DEPS;PRIVATE_DEPS;INCLUDES" ${ARGN})
    add_library(${name} ${kind} ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    target_link_libraries(${name} PUBLIC ${ARG_PUBLIC_DEPS}
        PRIVATE $<BUILD_INTERFACE:mainframe_options> ${ARG_PRIVATE_DEPS})
    foreach(dir IN LISTS ARG_INCLUDES)
        target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${dir}>)
    endforeach()
endfunction()

function(mainframe_plugin name)
    cmake_parse_arguments(ARG "" "OUTPUT;DIRECTORY" "SOURCES;DEPS" ${ARGN})
    add_library(${name} MODULE ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE mainframe_options ${ARG_DEPS})
    if(NOT ARG_DIRECTORY)
        set(ARG_DIRECTORY "${CMAKE_BINARY_DIR}/plugins")
    endif()
    set_target_properties(${name} PROPERTIES PREFIX "lib" OUTPUT_NAME "${ARG_OUTPUT}"
        LIBRARY_OUTPUT_DIRECTORY "${ARG_DIRECTORY}")
endfunction()

# A test runs its executable inside a fresh instrument. gui and system tests get an X server there too;
# system tests also get the bus, the platform daemon and the window manager.
function(mainframe_test name)
    cmake_parse_arguments(ARG "" "LABEL;TIMEOUT" "SOURCES;DEPS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE mainframe_options Qt5::Test ${ARG_DEPS})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests/support")
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    add_dependencies(${name} simulator)
    set(profile_unit bare)
    set(profile_gui screen)
    set(profile_system full)
    add_test(NAME ${name} COMMAND "${PROJECT_SOURCE_DIR}/simulator/instrument" --build "${CMAKE_BINARY_DIR}"
        --profile ${profile_${ARG_LABEL}} -- $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES LABELS ${ARG_LABEL} TIMEOUT ${ARG_TIMEOUT})
endfunction()
