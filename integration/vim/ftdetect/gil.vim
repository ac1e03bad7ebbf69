" SPDX-License-Identifier: MIT
" A GIL file is known by its first line; .G and .P are other things elsewhere.
autocmd BufNewFile,BufRead *.G,*.P if getline(1) =~# '^;GIL-' | setfiletype gil | endif
