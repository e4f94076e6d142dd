; ###        Made with Tidemark V1.1, by the Tidemark developers, 2026      ###
; ###        Please send bug reports to: bugs@tidemark.example              ###
; ###       This ASM file contains Land/Water Mask polygon data only        ###
 
; The following two files (by Orrin Vale) must be in the same folder as BGLC.EXE for successful compilation
include TDFMacros.inc
include TDFHeaders.inc
 
; In next line, BGLHeader N, S, E, W limits of BGL (set by Tidemark)
BGLHeader 57, 53, 10, 6, LWMHeader, TerrainHeaderStart
 
LWMHeader   label   word
 
    LWMFileHeader 513, LWMIndexStart, LWMStart, LWMEnd
 
LWMStart    label   word
 
    datamark_0  label   word
 
       LWMDataAreaDrawPolygons 1, 3, 1, 12, 7
         LWMPoly2 4, 0, 1, 15, 0
           LWMPoint 0, 0
           LWMPoint 255, 0
           LWMPoint 255, 255
           LWMPoint 0, 255
    datamark_1  label   word
 
    Cellv_400_100    EQU  LWMCellID 0, 0, 3, 400, 100
 
    LWMIndexStart   label   word
 
        LWMIndexHeader 1, LWMIndexData
 
    LWMIndexData    label   word
 
        LWMIndexEntry Cellv_400_100, LWMStart, datamark_0, datamark_1
 
LWMEnd  label   word
 
; End of LWM file
