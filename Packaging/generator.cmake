# SPDX-License-Identifier: GPL-3.0-or-later
# Read by cpack once for each kind of package: what the two have not in common.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
  set(CPACK_PACKAGE_FILE_NAME quillon-${CPACK_PACKAGE_VERSION}-linux-${CPACK_QUILLON_PROCESSOR})
  set(CPACK_PACKAGING_INSTALL_PREFIX /Quillon.app)
endif()
