# Makes the metainfo of the desktop entry: ${metainfo}, with ZOL_HOMEPAGE and the addresses of screenshots below it or
# below ZOL_SCREENSHOTS. Without an address it names none. The test of the installation runs it by "cmake -P".
set(addresses "")
foreach(address IN ITEMS ZOL_HOMEPAGE ZOL_SCREENSHOTS)
  if(NOT "${${address}}" MATCHES "^(https?://[^][ <>&\"']+)?$")
    message(FATAL_ERROR "${address} is \"${${address}}\"; expected is an address with http:// or https://, or nothing")
  endif()
  string(REGEX REPLACE "/+$" "" ${address}_folder "${${address}}")
endforeach()
if(ZOL_HOMEPAGE)
  string(APPEND addresses "\n  <url type=\"homepage\">${ZOL_HOMEPAGE}</url>")
  if(NOT ZOL_SCREENSHOTS)
    set(ZOL_SCREENSHOTS_folder ${ZOL_HOMEPAGE_folder}/docs/images)
  endif()
endif()
if(ZOL_SCREENSHOTS_folder)
  string(APPEND addresses "\n  <screenshots>")
  set(type " type=\"default\"")
  foreach(screenshot IN ITEMS
      "main1.png|A crystal and its reflections"
      "automatic-indexing.png|A measured Kikuchi pattern, indexed automatically"
      "curve-measured.png|A calculated powder pattern over a measured one"
      "spots.png|The spot pattern of a zone axis"
      "master-pattern.png|A master pattern as a sphere")
    string(REGEX MATCH "^(.+)[|](.+)$" found "${screenshot}")
    string(APPEND addresses "
    <screenshot${type}>
      <caption>${CMAKE_MATCH_2}</caption>
      <image>${ZOL_SCREENSHOTS_folder}/${CMAKE_MATCH_1}</image>
    </screenshot>")
    set(type "")
  endforeach()
  string(APPEND addresses "\n  </screenshots>")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/io.github.zol.metainfo.xml.in ${metainfo} @ONLY)
