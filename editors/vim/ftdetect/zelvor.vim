" Vim knows .csp as something else: set, not setfiletype.
autocmd BufNewFile,BufRead *.csp,*/MODULES/QRD_*/*.inc set filetype=zelvor
