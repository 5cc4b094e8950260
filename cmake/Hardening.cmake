# Makes a fault in memory end the program at once, and leaves little of it to whoever would use the fault: programs can
# be loaded at any address, what the loader has filled in is read-only before main runs, frames, sized copies and the
# containers of the standard library are checked. Included once, before any target is made. The compiler's and the
# linker's flags are asked for before they are used; tests/hardening reads the programs that come of it.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
include(CheckPIESupported)

check_pie_supported(LANGUAGES C CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# Files of programs are compiled as those of libraries are, since both share precompiled headers. That costs nothing where
# a function cannot be exchanged for another's of the same name.
foreach(language C CXX)
    set(CMAKE_${language}_COMPILE_OPTIONS_PIE ${CMAKE_${language}_COMPILE_OPTIONS_PIC})
endforeach()

foreach(flag -fno-semantic-interposition -fstack-protector-strong -fcf-protection)
    string(MAKE_C_IDENTIFIER "HAS${flag}" is_known)
    check_cxx_compiler_flag(${flag} ${is_known})
    if(${is_known})
        add_compile_options(${flag})
    endif()
endforeach()

check_linker_flag(CXX -Wl,-z,relro,-z,now,-z,noexecstack HAS_RELRO)
if(HAS_RELRO)
    add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
endif()

add_compile_definitions(_GLIBCXX_ASSERTIONS)
# Sizes are known to an optimising compiler alone; the sanitizers check the same calls themselves. A compiler that
# defines it by default would warn of the second definition.
if(NOT ORVELLE_SANITIZE AND NOT ORVELLE_FUZZ)
    add_compile_options("$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
endif()
