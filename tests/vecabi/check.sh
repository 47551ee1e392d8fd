# Sourced by the checks of compilers: what loops call.
trap 'echo "$0: line $LINENO" >&2; grep -h error "$scratch"/remarks >&2' ERR
mkdir -p "$scratch"

# calls_of OBJECT: a line for each loop: its function and the symbols that it refers to. Compiled with -ffunction-sections.
calls_of() {
    objdump -r "$1" | awk '
        /^RELOCATION RECORDS FOR/ { split($4, part, /loop_|\]/); loop = $4 ~ /^\[\.text\.loop_/ ? part[2] : "" }
        loop != "" && /R_X86_64_(PLT32|PC32|GOTPCREL|GOTPCRELX|REX_GOTPCRELX|64)/ {
            sub(/[-+]0x[0-9a-f]+$/, "", $3)
            if ($3 !~ /^\.(L|rodata|text)/) calls[loop] = calls[loop] " " $3
        }
        END { for (loop in calls) print loop calls[loop] }'
}

# names_are OBJECT LETTER INSTRUCTIONS [CPP-FLAG]: each loop calls vector names of that form and nothing else, or, where the
# compiler has an instruction (function:mnemonic), holds that and calls nothing.
names_are() {
    local object=$1 letter=$2 row kind name call by wrong=0
    local -A calls=() instruction=()
    while read -r name row; do calls[$name]=$row; done < <(calls_of "$object")
    for row in $3; do instruction[${row%:*}]=${row#*:} instruction[${row%:*}f]=${row#*:}; done
    for name in $(cpp -P ${4-} -D'LOOP(kind,d,f,...)=d f' "$here/functions.def"); do
        by=${instruction[$name]-}
        if [ "$by" ]; then
            if [ "${calls[$name]-}" ] || ! objdump -d --no-show-raw-insn -j ".text.loop_$name" "$object" | grep "\s$by" >/dev/null; then
                echo "loop over $name: no ${by}..., calls ${calls[$name]-nothing}" >&2
                wrong=1
            fi
            continue
        fi
        [ "${calls[$name]-}" ] || { echo "loop over $name: calls nothing" >&2; wrong=1; }
        for call in ${calls[$name]-}; do
            [[ $call =~ ^_ZGV${letter}N[0-9]+[vl0-9]+_(orvane_)?$name$ ]] && continue
            echo "loop over $name: calls $call" >&2
            wrong=1
        done
    done
    return $wrong
}
