# Makes the test programs quick to build: script/test builds them three times.

option(CORVIX_PRECOMPILE_TESTS "Parse the headers of the test frameworks once for all test programs" OFF)

find_program(CORVIX_FAST_LINKER ld.lld)

# Compiles the targets of the current folder and of the folders below it without optimisation, and links them with a fast
# linker if there is one. The product keeps the options of its build type. Fortified functions need optimisation, so they
# are switched off too.
macro(corvix_build_quickly)
    add_compile_options($<${optimised}:-O0> $<${optimised}:-U_FORTIFY_SOURCE>)
    if(CORVIX_FAST_LINKER)
        add_link_options(-fuse-ld=lld)
    endif()
endmacro()

# Sets RESULT to the programs of FOLDER and of the folders below it.
function(corvix_programs RESULT folder)
    set(programs "")
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        if(type STREQUAL EXECUTABLE)
            list(APPEND programs ${target})
        endif()
    endforeach()
    get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    foreach(subfolder IN LISTS folders)
        corvix_programs(below ${subfolder})
        list(APPEND programs ${below})
    endforeach()
    set(${RESULT} ${programs} PARENT_SCOPE)
endfunction()

# Gives the QtTest programs below FOLDER one precompiled header and the programs without Qt another one. The compiler
# ignores a precompiled header that was made with other definitions, so all programs get those of the header.
function(corvix_precompile_tests folder)
    if(NOT CORVIX_PRECOMPILE_TESTS)
        return()
    endif()
    corvix_programs(programs ${folder})

    file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/precompiled.cpp CONTENT "int main() {}\n")
    foreach(kind IN ITEMS qt sdk)
        add_executable(precompiled_${kind} EXCLUDE_FROM_ALL ${CMAKE_CURRENT_BINARY_DIR}/precompiled.cpp)
    endforeach()
    target_link_libraries(precompiled_qt PRIVATE Qt5::Widgets Qt5::Test launcher_warnings)
    # Loading a precompiled header takes time too, so it contains only what most tests need.
    target_precompile_headers(precompiled_qt PRIVATE
        <QtTest> <QApplication> <QHeaderView> <QLabel> <QMenu> <QPushButton> <QScrollArea> <QScrollBar> <QTableWidget>)
    target_link_libraries(precompiled_sdk PRIVATE GTest::gtest corvix_warnings)
    target_precompile_headers(precompiled_sdk PRIVATE
        <gtest/gtest.h> <algorithm> <chrono> <filesystem> <fstream> <functional> <sstream> <thread>)

    foreach(program IN LISTS programs)
        get_target_property(libraries ${program} LINK_LIBRARIES)
        if(Qt5::Test IN_LIST libraries)
            target_link_libraries(${program} PRIVATE Qt5::Widgets)
            target_precompile_headers(${program} REUSE_FROM precompiled_qt)
        elseif(NOT launcher_warnings IN_LIST libraries)
            target_compile_definitions(${program} PRIVATE GTEST_HAS_PTHREAD=1)
            target_precompile_headers(${program} REUSE_FROM precompiled_sdk)
        endif()
        set_target_properties(${program} PROPERTIES PCH_WARN_INVALID OFF)
    endforeach()
endfunction()
