# Warnings as errors apply to our own targets only, never to third-party code.
function(svgfigurer_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 reports std::string concatenation at -O3 as overlapping memcpy (GCC bug 105329).
    target_compile_options(${target} PRIVATE -Wno-restrict)
    if(SVGFIGURER_SANITIZE)
      # Under the sanitizers GCC 12 flags strings inside std::variant as maybe uninitialized;
      # the plain builds keep the warning.
      target_compile_options(${target} PRIVATE -Wno-maybe-uninitialized)
    endif()
  endif()
endfunction()
