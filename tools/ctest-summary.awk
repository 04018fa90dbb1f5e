# Reads the output of `ctest --verbose`. Prints "N passed, N failed", then for each test that failed
# the end of its output. A GoogleTest program counts as the cases that it ran, any other test as one.

function keep(id, line) {
    output[id, lines[id]++] = line
}

# The output of a test, each line behind its number. Of cases that passed nothing is kept.
match($0, /^[0-9]+: /) {
    id = substr($0, 1, RLENGTH - 2) + 0
    line = substr($0, RLENGTH + 1)
    if (line ~ /^\[ RUN      \]/) {
        running[id] = line
    } else if (line ~ /^\[       OK \]/) {
        delete running[id]
    } else if (line !~ /^(\[[-=]+\]|Working Directory:|Test timeout|Note: Google Test filter|Running main)/) {
        if (id in running) {
            keep(id, running[id])
            delete running[id]
        }
        keep(id, line)
    }
    if (line ~ /^\[==========\] Running /) {
        isGoogleTest[id] = 1
    }
    if (match(line, /^\[  (PASSED|FAILED)  \] [0-9]+ tests?[.,]/)) {
        split(line, words, /[] ]+/)
        cases[id, words[2]] = words[3]
    }
    next
}

# The verdict on a test.
match($0, /^ *[0-9]+\/[0-9]+ Test +#[0-9]+: /) {
    id = substr($0, 1, RLENGTH - 2)
    sub(/.*#/, "", id)
    id += 0
    # A GoogleTest program that says good-bye without a summary did not pass, whatever its status is.
    reachedItsEnd = !(id in isGoogleTest) || (id, "PASSED") in cases
    if ($0 ~ / Passed +[0-9.]+ sec/ && reachedItsEnd) {
        passed += ((id, "PASSED") in cases) ? cases[id, "PASSED"] : 1
    } else if ($0 !~ /\*\*\*Skipped|\*\*\*Not Run \(Disabled\)/) {
        # A program may also fail outside its cases, or end early in one of them.
        passed += cases[id, "PASSED"]
        failed += cases[id, "FAILED"] > 0 ? cases[id, "FAILED"] : 1
        verdict[id] = $0
        failures[++failureCount] = id
    }
}

END {
    printf "%d passed, %d failed\n", passed, failed
    for (i = 1; i <= failureCount; ++i) {
        id = failures[i]
        if (id in running) {
            keep(id, running[id])
        }
        print verdict[id]
        for (n = lines[id] > limit ? lines[id] - limit : 0; n < lines[id]; ++n) {
            print "    " output[id, n]
        }
    }
}
