# Doxygen's filter for the headers: puts what one declares in the namespace into the group with the header's name.
FNR == 1 {
    group = FILENAME
    sub(/.*\//, "", group)
    sub(/\.h$/, "", group)
}
/^namespace vorn(::paths)? \{/ { $0 = $0 " /** \\addtogroup " group " */ /** @{ */" }
/^\} \/\/ namespace vorn(::paths)?$/ { $0 = "/** @} */ " $0 }
{ print }
