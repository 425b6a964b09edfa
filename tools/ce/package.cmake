# The cabinet that a device installs the program from.
set(package ${CMAKE_BINARY_DIR}/OrvaneOptions.cab)
set(package_folder ${CMAKE_BINARY_DIR}/device)
get_property(libraries GLOBAL PROPERTY resource_libraries)
set(package_files)
foreach(target OVOptions ${libraries})
    list(APPEND package_files $<PATH:RELATIVE_PATH,$<TARGET_FILE:${target}>,${package_folder}>)
endforeach()
add_custom_command(OUTPUT ${package}
    COMMAND ${CMAKE_CURRENT_LIST_DIR}/make_cab --output ${package} --from ${package_folder} ${package_files}
    DEPENDS ${CMAKE_CURRENT_LIST_DIR}/make_cab OVOptions ${libraries}
    VERBATIM)
add_custom_target(package_for_device ALL DEPENDS ${package})
