autocmd BufNewFile,BufRead *.csp,*/MODULES/QRD_*/*.inc setfiletype zelvor
