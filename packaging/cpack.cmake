# What goes where in each kind of package.
set(parts "${CPACK_INSTALL_CMAKE_PROJECTS}")
list(GET parts 0 build_folder)
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_INSTALL_CMAKE_PROJECTS
      ${build_folder} province-editor program /lib/province-editor
      ${build_folder} province-editor desktop /)
else()
  set(CPACK_PACKAGING_INSTALL_PREFIX "")
  set(CPACK_INSTALL_CMAKE_PROJECTS ${build_folder} province-editor program /)
endif()
