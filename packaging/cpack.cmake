# What goes where in each kind of package.
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build_folder)
set(CPACK_PACKAGING_INSTALL_PREFIX /)
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_INSTALL_CMAKE_PROJECTS
      ${build_folder} province-editor program /usr/lib/province-editor
      ${build_folder} province-editor desktop /usr)
else()
  set(CPACK_INSTALL_CMAKE_PROJECTS ${build_folder} province-editor program /)
endif()
