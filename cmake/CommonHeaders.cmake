# precompile_common_headers(TARGET): compiles the headers that most sources of the reference host include once for all
# of TARGET; half of the time it takes to compile them one by one goes into these. No header of the host itself: which
# folder may include which stays visible. A source still includes what it uses: clang-tidy sees it without these.
function(precompile_common_headers target)
    target_precompile_headers(${target} PRIVATE
        <algorithm> <array> <filesystem> <map> <memory> <optional> <set> <span> <string> <string_view> <system_error>
        <unordered_map> <utility> <variant> <vector> <fmt/format.h> <VEXBaseUnknown.h> <VEXUnicodeString.h>)
endfunction()
