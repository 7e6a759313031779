" Card scripts of Zelvor Cards. Written by tools/editor_syntax.cpp; change it there.
if exists("b:current_syntax")
  finish
endif
syntax case ignore
syntax match zelvorComment "^\s*#.*$"
syntax match zelvorPlaceholder "{[^{}]*}" containedin=ALLBUT,zelvorComment
syntax match zelvorSeparator "[~;]"
syntax match zelvorCommand /\(^\s*\|"\)\zsADD2LABELARRAY\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsASKFIELD\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsAUTOCLOCKCARD\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsAUTOFEED\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsAUTOTIMECARD\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsBREAK\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsBUTTONCOLOR\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsBUTTONTEXT\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsCALC\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsCFILE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsCFILE8\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsCHARCOUNT\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsCLEARDATA\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsCLEARDATAREMOTE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsCSPSEND\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsCSPSENDREMOTE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsDELAY\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsDISABLEPREVIEW\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsENDCARD\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsEVAL\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsEXECSQL\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsEXECUTE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsFI\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsFOREACHREC\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsFUNCTIONCARD\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsIF\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsIFL\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsINCLUDE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsISCLOCK\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsISTIME\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsLASTCARDONAIR\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsLASTCARDTAG\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsLOADFORM\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsLOADTXT\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsLOADTXTLINE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsLOOPPAGE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsMAKEXML\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsMAKEXMLREMOTE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsNORTXOUT\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsOFF\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsOFFALL\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsOFILE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsOFILE8\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsON\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsPERCENT\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsPERCENTMAX\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsPROPOSE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsQUERY\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsQUERY+\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsREPLACE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsRETURNASK\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsROF\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsROUND\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsRTX\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsRTXS\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSCANPROPOSED\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSDATA\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSDATAREMOTE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSETVAR\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSHOW2LABEL\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSHOW2TEXT\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSIMAGE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSIMAGEREMOTE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSPLIT\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSQL\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSQL2\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSQLU\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSTOPCLOCK\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsSTOPTIME\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsTAG2LABEL\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsWFILE\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsWFILE8\ze\s*\(\~\|"\|$\)/
syntax match zelvorCommand /\(^\s*\|"\)\zsWRITELOG\ze\s*\(\~\|"\|$\)/
highlight default link zelvorComment Comment
highlight default link zelvorCommand Statement
highlight default link zelvorPlaceholder Identifier
highlight default link zelvorSeparator Delimiter
let b:current_syntax = "zelvor"
