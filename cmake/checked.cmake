# Undefined behaviour ends a program, and so does a step beyond a block of the heap or into one that
# was freed.
target_compile_options(project_options INTERFACE -fsanitize-undefined-trap-on-error
    -fsanitize=undefined,float-cast-overflow,float-divide-by-zero,bounds-strict)
target_compile_definitions(project_options INTERFACE _GLIBCXX_ASSERTIONS)

add_library(guarded_heap STATIC tests/checked/guarded_heap.cpp)
target_compile_options(guarded_heap PRIVATE -fno-builtin)
target_link_libraries(project_options INTERFACE guarded_heap)
# Before the libraries that come later get the C library's.
target_link_options(project_options INTERFACE -Wl,-u,malloc,-u,calloc,-u,realloc,-u,free)
