# What all of the project's own targets share. Private to the build: what a
# consumer must have is said on each target, as PUBLIC.
add_library(qdacore_build_options INTERFACE)
target_compile_features(qdacore_build_options INTERFACE cxx_std_17)
target_compile_options(qdacore_build_options INTERFACE
  $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall;-Wextra;-Wshadow;-Wnon-virtual-dtor;-Wpedantic>
  $<$<AND:$<BOOL:${QDACORE_WERROR}>,$<CXX_COMPILER_ID:GNU,Clang>>:-Werror>)

function(qdacore_target_defaults target)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
  if(NOT WIN32)
    # Nobody overrides a library's functions from outside, so its own calls go straight.
    target_compile_options(${target} PRIVATE
      $<$<CXX_COMPILER_ID:GNU,Clang>:-fno-semantic-interposition>
      # A unique symbol would keep a library from ever being unloaded.
      $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
    get_target_property(type ${target} TYPE)
    if(type MATCHES "^(SHARED|MODULE)_LIBRARY$")
      target_link_options(${target} PRIVATE -Wl,-Bsymbolic-functions)
    endif()
  endif()
  if(WIN32)
    # The names are the contract: qdacore.dll, not libqdacore.dll.
    set_target_properties(${target} PROPERTIES PREFIX "")
  endif()
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:qdacore_build_options>)
endfunction()
