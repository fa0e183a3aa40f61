foreach(target file_info heads vorbis_comment id3 exact_files names)
    kelp_fuzz(tag_${target} SOURCES fuzz_tag_${target}.cpp LINK tags_logic)
endforeach()

# Code makes the first inputs of these targets.
if(TARGET test_support)
    add_executable(make_tag_seeds make_tag_seeds.cpp)
    kelp_warnings(make_tag_seeds)
    set_target_properties(make_tag_seeds PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/fuzz")
    target_link_libraries(make_tag_seeds PRIVATE test_support)
endif()
