# Same input, same bits, with every compiler: no contraction of a multiplication and an addition into one
# rounding, and never fast-math. Warnings are errors for us; a project that builds us inside its own decides itself.
#
# Nobody reads errno or the floating-point exception flags after a computation, so the compiler need not keep them; that
# lets it put comparisons and roots of several numbers into one instruction, and changes no result.
#
# Where the processor has fused instructions (-march=native), GCC 12 makes some from vectorised complex products even so;
# -mno-fma takes them away, and -mno-avx512f those that AVX-512 has of its own.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-mno-fma GK_HAS_MNO_FMA)
check_cxx_compiler_flag(-mno-avx512f GK_HAS_MNO_AVX512F)

function(gk_compile_options target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    $<$<BOOL:${GKCNTR_WERROR}>:-Werror>
    -ffp-contract=off
    -fno-math-errno
    -fno-trapping-math
    $<$<BOOL:${GK_HAS_MNO_FMA}>:-mno-fma>
    $<$<BOOL:${GK_HAS_MNO_AVX512F}>:-mno-avx512f>)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
endfunction()
