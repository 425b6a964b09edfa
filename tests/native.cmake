# The parts that know no platform, on the build machine, under the sanitizers.
set(services ${PROJECT_SOURCE_DIR}/src/shell/services)
set(files ${PROJECT_SOURCE_DIR}/src/files)
set(preview ${PROJECT_SOURCE_DIR}/src/preview)
file(GLOB pure_tests CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/pure/*_test.cpp)
add_executable(pure_tests ${pure_tests}
    ${files}/backup_reader.cpp
    ${files}/byte_stream.cpp
    ${files}/filter_file.cpp
    ${files}/line_grammar.cpp
    ${files}/line_reader.cpp
    ${files}/line_writer.cpp
    ${files}/tga_image.cpp
    ${files}/utf8.cpp
    ${services}/number_text.cpp
    ${services}/wide_string.cpp
    ${preview}/appointment_texts.cpp
    ${preview}/item_layout.cpp
    ${preview}/time_text.cpp
    ${PROJECT_SOURCE_DIR}/platform/coredll/category_text.cpp)
target_link_libraries(pure_tests PRIVATE test_options)
add_test(NAME pure COMMAND pure_tests)
