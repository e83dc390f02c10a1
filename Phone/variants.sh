# What the scripts here agree on: the slices of the library, and the kinds of phone that it is made for.
# shellcheck shell=bash disable=SC2034

# Reads the options that they share, and leaves the other arguments in `operands`:
#     --slice arm64|x86_64                   the phone's own code, or the same for this machine's processor
#     --kind iphoneos-arm|iphoneos-arm64     the package manager's name for the phones; it is also the package's
# The first of each is taken where nothing is said.
readVariant() {
    slice=arm64
    kind=iphoneos-arm
    operands=()
    while [[ $# -gt 0 ]]; do
        case $1 in
        --slice) slice=${2-} && shift ;;
        --kind) kind=${2-} && shift ;;
        *) operands+=("$1") ;;
        esac
        [[ $# -eq 0 ]] || shift
    done
    case $slice in
    arm64) target=(arm64-apple-ios13.0) platform=ios ;;
    # With its rounding instructions, the compiler calls the same functions as for the phone.
    x86_64) target=(x86_64-apple-ios13.0-simulator -msse4.1) platform=ios-simulator ;;
    *) echo "$(basename "$0"): --slice takes arm64 or x86_64, not '$slice'" >&2 && exit 2 ;;
    esac
    # Where the system's own folders are sealed, what is installed lies under a folder of its own.
    case $kind in
    iphoneos-arm) prefix='' firstSystem=13.0 ;;
    iphoneos-arm64) prefix=/var/jb firstSystem=15.0 ;;
    *) echo "$(basename "$0"): --kind takes iphoneos-arm or iphoneos-arm64, not '$kind'" >&2 && exit 2 ;;
    esac
}

# The name under which libraries find an installed one: its path, or with a prefix a name that the loader searches.
installedName() {
    if [[ -z $prefix || $1 != /Library/* ]]; then
        echo "$1"
    else
        echo "@rpath/${1#/Library/*/}"
    fi
}
installName() {
    installedName /Library/MobileSubstrate/DynamicLibraries/LYR_Pro.dylib | sed 's|^@rpath/.*/|@rpath/|'
}
# The folders in which the loader searches.
searchFolders() {
    if [[ -n $prefix ]]; then
        printf '%s\n' "$prefix/Library/Frameworks" "$prefix/usr/lib"
    fi
}

# The package's fields: renderControl VERSION
renderControl() {
    sed "s/@VERSION@/$1/; s/@KIND@/$kind/; s/@FIRST_SYSTEM@/$firstSystem/" \
        "$(dirname "${BASH_SOURCE[0]}")/Package/control.in"
}
# What runs on the phone once the package is unpacked.
renderPostinst() {
    sed "s|@PREFIX@|$prefix|" "$(dirname "${BASH_SOURCE[0]}")/Package/postinst.in"
}
