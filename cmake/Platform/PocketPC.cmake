# What CMake should know of the platform that pocket-pc.cmake builds for.
set(POCKET_PC TRUE)
set(CMAKE_EXECUTABLE_SUFFIX ".exe")
set(CMAKE_STATIC_LIBRARY_PREFIX "lib")
set(CMAKE_STATIC_LIBRARY_SUFFIX ".a")
set(CMAKE_SHARED_MODULE_PREFIX "")
set(CMAKE_SHARED_MODULE_SUFFIX ".dll")

set(device_linker "${CMAKE_CURRENT_LIST_DIR}/../../tools/ce/link")
# What is to be linked anew when one of them changes.
set(linker_files ${device_linker})
foreach(file elf.py image.py resources.py image.ld)
    list(APPEND linker_files ${CMAKE_CURRENT_LIST_DIR}/../../tools/ce/${file})
endforeach()
set(CMAKE_CXX_LINK_EXECUTABLE
    "${device_linker} --compiler <CMAKE_CXX_COMPILER> --output <TARGET> -- <FLAGS> <LINK_FLAGS> <OBJECTS> <LINK_LIBRARIES>")
# Libraries hold nothing but resources.
set(CMAKE_C_CREATE_SHARED_MODULE "${device_linker} --library --output <TARGET> -- <OBJECTS>")
