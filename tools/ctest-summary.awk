# Reads the output of `ctest --verbose`. Prints "N passed, N failed", then the end of the output of
# each test that failed. A GoogleTest program counts as the cases that it ran, any other test as one.

match($0, /^[0-9]+: /) {
    id = substr($0, 1, RLENGTH - 2) + 0
    line = substr($0, RLENGTH + 1)
    output[id, lines[id]++] = line
    if (match(line, /^\[  (PASSED|FAILED)  \] [0-9]+ tests?[.,]/)) {
        split(line, words, /[] ]+/)
        cases[id, words[2]] = words[3]
    }
    next
}

match($0, /^ *[0-9]+\/[0-9]+ Test +#[0-9]+: /) {
    id = substr($0, 1, RLENGTH - 2)
    sub(/.*#/, "", id)
    id += 0
    if ($0 ~ / Passed +[0-9.]+ sec/) {
        passed += ((id, "PASSED") in cases) ? cases[id, "PASSED"] : 1
    } else if ($0 !~ /\*\*\*Skipped|\*\*\*Not Run \(Disabled\)/) {
        passed += cases[id, "PASSED"]
        # A program may also fail, or end early, after cases that passed.
        failed += cases[id, "FAILED"] > 0 ? cases[id, "FAILED"] : 1
        failures[++failureCount] = id
        verdict[id] = $0
    }
}

END {
    printf "%d passed, %d failed\n", passed, failed
    for (i = 1; i <= failureCount; ++i) {
        id = failures[i]
        print verdict[id]
        from = lines[id] > limit ? lines[id] - limit : 0
        for (n = from; n < lines[id]; ++n) {
            print "    " output[id, n]
        }
    }
}
