# A tag library is the baseline; without it the other figures still come.
pkg_check_modules(TAGLIB QUIET IMPORTED_TARGET taglib)
if(TARGET test_support)
    kelp_bench(tags_bench SOURCES tags_bench.cpp LINK tags_logic test_support)
    if(TARGET tags_bench AND TAGLIB_FOUND)
        target_link_libraries(tags_bench PRIVATE PkgConfig::TAGLIB)
        target_compile_definitions(tags_bench PRIVATE KELP_HAVE_TAGLIB=1)
    endif()
endif()
