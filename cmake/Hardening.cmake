# Sets protections for all programs and libraries, and options that make a build reproducible.

include(CheckPIESupported)
# Without this call, the default of the compiler decides whether a program is position-independent.
check_pie_supported(LANGUAGES CXX)

add_compile_options(-fstack-protector-strong)
add_link_options(LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack LINKER:--enable-new-dtags)

# Fortified functions need optimisation. The sanitizers have their own checks.
set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
if(NOT CORVIX_SANITIZE AND NOT CORVIX_FUZZ)
    # Some compilers define the macro themselves, with another value.
    add_compile_options($<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=2>)
endif()

# A release contains no path of the build machine. A debug build keeps the paths for the debugger.
add_compile_options(
    $<${optimised}:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>
    $<${optimised}:-ffile-prefix-map=${PROJECT_BINARY_DIR}=build>)
# Later versions of the format contain the modification times of the embedded files.
set(CMAKE_AUTORCC_OPTIONS --format-version 1)
