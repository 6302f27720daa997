# Defines two interface targets: corvix_warnings for all of our code, and launcher_warnings for code that uses Qt.

set(CORVIX_SANITIZE "" CACHE STRING "Sanitizers to build with, for example \"address,undefined\" or \"thread\"")
option(CORVIX_COVERAGE "Instrument for gcov" OFF)
option(CORVIX_FUZZ "Build the fuzzers instead of the tests that run their kept inputs; needs clang" OFF)

add_library(corvix_warnings INTERFACE)
target_compile_options(corvix_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
target_include_directories(corvix_warnings INTERFACE ${PROJECT_SOURCE_DIR})

add_library(launcher_warnings INTERFACE)
target_link_libraries(launcher_warnings INTERFACE corvix_warnings)
target_compile_definitions(launcher_warnings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_DEPRECATED_WARNINGS)

if(CORVIX_SANITIZE)
    add_compile_options(-fsanitize=${CORVIX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${CORVIX_SANITIZE})
endif()
# corvix_optimize_for_sanitizers(): optimises the targets of this folder that are defined from here on, and those of the
# folders that are added from here on. Code that computes every pixel would be too slow for tests with sanitizers.
function(corvix_optimize_for_sanitizers)
    if(CORVIX_SANITIZE)
        # Checks of the sanitizers make this warning wrong at times. The release build has it, too.
        add_compile_options(-O1 -Wno-maybe-uninitialized)
    endif()
endfunction()
if(CORVIX_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()
if(CORVIX_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
