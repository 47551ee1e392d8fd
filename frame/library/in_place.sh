# Stops a build in a folder that was copied, whose rules name the tree that it was copied from. Rules run where the
# original lies; the program that runs them, two processes up or one, works in the folder that someone builds.
#     in_place.sh CONFIGURED_FOLDER      with CONFIGURED_FOLDER/CMakeFiles as the working directory
builder=$PPID
[ "/proc/$builder/cwd" -ef . ] && builder=$(sed -n 's/^PPid:[[:space:]]*//p' "/proc/$builder/status")
folder=$(readlink "/proc/$builder/cwd") || exit 0
[ "$folder" -ef "$1" ] && exit
echo "error: $folder was configured as $1, whose sources it would build: remove its CMakeCache.txt and configure it anew (./run and ./test do)" >&2
exit 1
