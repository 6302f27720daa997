# Makes the test programs quick to build: script/test builds them three times.
#
# In a unity build, the compiler receives all sources of a target as one file and parses each header once. Names in
# anonymous namespaces have to be unique within such a target. The presets other than "dev" and "fuzz" build the tests
# as unity builds. "release" and the presets with sanitizers also build the product as unity builds.

option(CORVIX_QUICK_TESTS "Build the tests as unity builds with a precompiled header" OFF)
find_program(CORVIX_FAST_LINKER ld.lld)

# Compiles the targets of the current folder and of the folders below it without optimisation, and links them with a fast
# linker if there is one. The product keeps the options of its build type. Fortified functions need optimisation, so they
# are switched off too.
macro(corvix_build_quickly)
    add_compile_options($<${optimised}:-O0> $<${optimised}:-U_FORTIFY_SOURCE>)
    if(CORVIX_FAST_LINKER)
        add_link_options(-fuse-ld=lld)
    endif()
    if(CORVIX_QUICK_TESTS)
        set(CMAKE_UNITY_BUILD ON)
        set(CMAKE_UNITY_BUILD_BATCH_SIZE 16)
        add_compile_options(-Wno-subobject-linkage) # A fixture may be in an anonymous namespace.

        # The programs that reuse this precompiled header need the same definitions, and so the same Qt libraries.
        file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/precompiled.cpp CONTENT "int main() {}\n")
        add_executable(precompiled_qt EXCLUDE_FROM_ALL ${CMAKE_CURRENT_BINARY_DIR}/precompiled.cpp)
        target_link_libraries(precompiled_qt PRIVATE Qt5::Widgets Qt5::Test launcher_warnings)
        # Loading a precompiled header takes time too, so this one contains only what most tests need.
        target_precompile_headers(precompiled_qt PRIVATE
            <QtTest> <QApplication> <QHeaderView> <QLabel> <QMenu> <QPushButton> <QScrollArea> <QScrollBar> <QTableWidget>)
    endif()
endmacro()

# Lets a QtTest program use the precompiled header, if there is one.
function(corvix_precompile_qt program)
    if(CORVIX_QUICK_TESTS)
        target_link_libraries(${program} PRIVATE Qt5::Widgets)
        target_precompile_headers(${program} REUSE_FROM precompiled_qt)
        # If a program has other definitions, it cannot reuse the header, which is not an error.
        set_target_properties(${program} PROPERTIES PCH_WARN_INVALID OFF)
    endif()
endfunction()
