#!/usr/bin/env bash
# Runs the two commands of the README on a bare Debian 12, where nothing that was ever installed hides a package that the list
# of dependencies lacks. What is committed counts: a clone of HEAD goes in. Ends with 0 when both commands passed, 1 when one
# failed, 77 when this machine cannot try.
set -euo pipefail
cd "$(dirname "$0")/.."
top=$PWD
. scripts/bare-root.sh
inOwnNamespaces "$@"

[ -z "$(git status --porcelain --untracked-files=no)" ] || echo "What is not committed is left out"
makeBareRoot

# The clone stands where the checkout stands, and the compiler cache is the machine's: the second time compiles little.
mkdir -p "$root$top" "$root/root/.ccache"
git clone --quiet --no-hardlinks "$top" "$root$top"
cache=$(ccache --get-config cache_dir 2>/dev/null || true)
if [ -n "$cache" ] && mkdir -p "$cache"; then mount --bind "$cache" "$root/root/.ccache"; fi

failed=()
for command in ./run.sh ./test.sh; do
  echo "== $command on the bare root ($SECONDS s)"
  inside "cd '$top' && $command" || failed+=("$command (exit status $?)")
done

if [ ${#failed[@]} -gt 0 ]; then
  printf 'FAILED on a bare Debian 12: %s\n' "${failed[@]}" >&2
  exit 1
fi
echo "Both commands pass on a bare Debian 12 ($SECONDS s)"
