# Compiles every header of the project alone, so that no header leans on what another happens to include: the portable ones
# in a native build, those of Windows in a Windows build. A header whose own source includes it first is shown to stand alone
# by that source; tools/check_house.py demands that order, and the builds that look are not batched there.
function(corvex_header_check target)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
    platform/*.h session/*.h files/*.h definition/*.h acquisition/*.h logging/*.h controls/*.h views/*.h apps/*.h)
  if(NOT WIN32)
    list(FILTER headers EXCLUDE REGEX "_win32\\.h$|/WindowsApi\\.h$")
    # Of the desktop only the models are portable.
    set(models ${headers})
    list(FILTER models INCLUDE REGEX "Model\\.h$")
    list(FILTER headers EXCLUDE REGEX "^(controls|views|session/window|apps/desktop|apps/editor)/")
    list(APPEND headers ${models})
    list(REMOVE_DUPLICATES headers)
  else()
    list(FILTER headers INCLUDE REGEX "^(controls|views|session/window|apps/desktop|apps/editor)/|_win32\\.h$|/WindowsApi\\.h$")
    list(FILTER headers EXCLUDE REGEX "Model\\.h$")
  endif()
  set(stubs)
  foreach(header IN LISTS headers)
    string(REGEX REPLACE "\\.h$" ".cpp" own_source ${header})
    if(EXISTS ${PROJECT_SOURCE_DIR}/${own_source})
      continue()
    endif()
    string(MAKE_C_IDENTIFIER ${header} stub)
    set(stub ${PROJECT_BINARY_DIR}/header_check/${stub}.cpp)
    file(CONFIGURE OUTPUT ${stub} CONTENT "#include \"@header@\"\n#include \"@header@\"\n" @ONLY)
    list(APPEND stubs ${stub})
  endforeach()
  add_library(${target} OBJECT ${stubs})
  target_link_libraries(${target} PRIVATE corvex_options corvex_cli11 corvex_json)
  target_compile_options(${target} PRIVATE -O0 -g0)  # nothing of them runs
  set_target_properties(${target} PROPERTIES UNITY_BUILD OFF)  # alone is the point
endfunction()
