# Writes boltzmann.txt: awk -f data/boltzmann.awk > data/boltzmann.txt
#
# The exponents of the Boltzmann factors e^(-E / kT) of carbon monoxide's vibrational and rotational levels, by which a
# spectrum is computed: E over the ground level for v = 0 ... 8 and J = 0 ... 60, at 300, 1000 and 3000 K. At 300 K the
# highest levels have factors that are subnormal or zero as a float.
BEGIN {
    print "# -E / kT of the levels of carbon monoxide; written by boltzmann.awk"
    # Spectroscopic constants of 12C16O in its ground state, in 1/cm (Huber and Herzberg, Constants of Diatomic
    # Molecules, 1979), and k / hc in 1/(cm K).
    we = 2169.81358; wexe = 13.28831; be = 1.93128087; ae = 0.01750441; de = 6.12147e-6
    k = 0.695034800
    split("300 1000 3000", temperatures)
    for (t = 1; t <= 3; t++)
        for (v = 0; v <= 8; v++)
            for (j = 0; j <= 60; j++)
                printf "%.9g\n", (level(0, 0) - level(v, j)) / (k * temperatures[t])
}
function level(v, j,    h, r) {
    h = v + 0.5
    r = j * (j + 1)
    return we * h - wexe * h * h + (be - ae * h) * r - de * r * r
}
