# The page's parts as bytes, each between two names.
.macro embedded name, file
    .globl orvane_page_\name, orvane_page_\name\()_end
orvane_page_\name:
    .incbin "\file"
orvane_page_\name\()_end:
.endm

    .section .rodata
    embedded html, "page/report.html"
    embedded css, "page/report.css"
    embedded js, "page/report.js"
    embedded chart, "chart.min.js"
    .section .note.GNU-stack, "", @progbits
