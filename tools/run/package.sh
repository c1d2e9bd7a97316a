#: ./run package [check]
#:               makes build/package: the zip, the installers, their checksums; `check` makes them once more in another
#:               folder, everything compiled anew, and compares

readonly kPackage=$kRoot/build/package
readonly kPackagePackages=(zip nsis)
readonly kPackagePrograms=(zip makensis)

can_package() { can_build_windows && have_programs "${kPackagePrograms[@]}"; }

# As in CMakeLists.txt.
project_version() { sed -nE 's/^project\(.* VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt; }

# All times in the package are that of the commit.
source_date() { printf '%s' "${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null)}"; }

# lay_out <folder>: what the package holds, as the builds have it, with fixed times and modes.
lay_out() {
  local preset
  rm -rf "$1"
  for preset in windows-x64 windows-x86; do
    compile "$preset" --target qorl_package_parts || return
    cmake --install "build/$preset" --component package --prefix "$1" || return
  done
  # Old editors show a text without carriage returns in one line.
  sed -i 's/$/\r/' "$1/README.txt"
  find "$1" -type d -exec chmod 755 {} + -o -type f -exec chmod 644 {} +
  find "$1" -exec touch --no-dereference --date="@$(source_date)" {} +
}

# files_below <folder> and folders_below <folder>: relative, in an order that no locale changes.
files_below() { (cd "$1" && find . -type f -printf '%P\n' | LC_ALL=C sort); }
folders_below() { (cd "$1" && find . -mindepth 1 -type d -printf '%P\n' | LC_ALL=C sort); }

# make_zip <folder in the package>
make_zip() {
  rm -f "$kPackage/$1.zip"
  (cd "$kPackage" && files_below "$1" | sed "s|^|$1/|" | TZ=UTC zip -X -q -9 "$1.zip" -@)
}

# write_file_list <folder in the package>: every file and folder by name, so that only these are removed again.
write_file_list() {
  cd "$kPackage" || return
  local file folder=.
  echo '!macro InstallFiles'
  echo '  SetOutPath "$INSTDIR"'
  while read -r file; do
    if [[ $(dirname "$file") != "$folder" ]]; then
      folder=$(dirname "$file")
      echo "  SetOutPath \"\$INSTDIR\\${folder//\//\\}\""
    fi
    echo "  File \"$1/$file\""
  done < <(files_below "$1")
  echo '!macroend'
  echo '!macro RemoveFiles'
  files_below "$1" | tr / '\\' | sed 's|.*|  Delete /REBOOTOK "$INSTDIR\\&"|'
  folders_below "$1" | tac | tr / '\\' | sed 's|.*|  RMDir /REBOOTOK "$INSTDIR\\&"|'
  echo '!macroend'
}

# make_installer <name> <target> <folder in the package>
make_installer() {
  local version size
  version=$(project_version)
  size=$(du -sk --apparent-size "$kPackage/$3" | cut -f1)
  (cd "$kPackage" &&
    TZ=UTC makensis -V2 -WX -NOCD -INPUTCHARSET UTF8 "-DVERSION=$version" "-DTARGET=$2" "-DOUT_FILE=$1.exe" \
      "-DSIZE_KB=$size" -DFILE_LIST=files.nsh "$kRoot/packaging/installer.nsi")
}

package_name() { printf 'QorlTST-%s' "$(project_version)"; }

make_package() {
  local name
  name=$(package_name)
  SOURCE_DATE_EPOCH=$(source_date)
  export SOURCE_DATE_EPOCH
  [[ -n $SOURCE_DATE_EPOCH ]] || { echo "Neither a commit nor SOURCE_DATE_EPOCH gives the time" && return 1; }
  grep -qE "^## \[$(project_version)\] - [0-9]{4}-[0-9]{2}-[0-9]{2}$" CHANGELOG.md ||
    { echo "CHANGELOG.md has no dated section for $(project_version)" && return 1; }
  rm -rf "$kPackage"
  lay_out "$kPackage/$name" &&
    make_zip "$name" &&
    (write_file_list "$name" >"$kPackage/files.nsh") &&
    make_installer "$name-setup" x86-unicode "$name" &&
    make_installer "$name-setup-x64" amd64-unicode "$name" &&
    (cd "$kPackage" && sha256sum "$name"*.zip "$name"*.exe >"$name.sha256")
}

# The same commit in another folder, everything compiled anew.
make_package_elsewhere() {
  local other=$kRoot/build/package-check/elsewhere
  rm -rf "$other"
  mkdir -p "$other"
  git archive HEAD | tar -x -C "$other" || return
  SOURCE_DATE_EPOCH=$(source_date) CCACHE_DISABLE=1 "$other/run" package || return
  diff -r "$kPackage" "$other/build/package"
}

check_package() {
  if [[ -n $(git status --porcelain) ]]; then
    say "The check compares with the commit: commit first"
    return 1
  fi
  step "package elsewhere" make_package_elsewhere || return
  say "Made twice, in two folders: no file differs"
}

command_package() {
  local name file
  name=$(package_name)
  provide "${kNativePackages[@]}" "${kWindowsPackages[@]}" "${kPackagePackages[@]}"
  require "The package" "${kNativePrograms[@]}" "${kWindowsPrograms[@]}" "${kPackagePrograms[@]}"
  step "package" make_package
  say "From the commit $(git describe --always --dirty 2>/dev/null || echo unknown), in build/package:"
  for file in "$kPackage/$name"*.{zip,exe}; do
    printf '  %-32s %8d bytes  %s\n' "${file##*/}" "$(stat -c %s "$file")" "$(sha256sum <"$file" | cut -d' ' -f1)"
  done
  [[ ${1:-} != check ]] || check_package
}
