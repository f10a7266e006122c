# Same input, same bits, with every compiler: no contraction of a multiplication and an addition into one
# rounding, and never fast-math. Warnings are errors for us; a project that builds us inside its own decides itself.
function(gk_compile_options target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    $<$<BOOL:${GKCNTR_WERROR}>:-Werror>
    -ffp-contract=off)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
endfunction()
