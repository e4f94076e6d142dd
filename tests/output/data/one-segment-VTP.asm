; ###        Made with Tidemark V1.1, by the Tidemark developers, 2026      ###
; ###        Please send bug reports to: bugs@tidemark.example              ###
; ###        This ASM file contains Vector Terrain Polygon data only        ###
 
; The following two files (by Orrin Vale) must be in the same folder as BGLC.EXE for successful compilation
include TDFMacros.inc
include TDFHeaders.inc
 
; In next line, BGLHeader N, S, E, W limits of BGL (set by Tidemark)
BGLHeader 57, 53, 10, 6, TerrainHeaderStart, VTPHeader
 
VTPHeader   label   word
    VTPFileHeader 256, VTPIndexStart, TextureStart, VTPEnd
 
VTPStart        label   word
    datamark_v0 label   word
 
  VTPDataArea 1, 0, 5, 17
     VTPLayer 31, 1
     VTPNumTexturesInLayer 0, 0
 
 
  VTPDataArea 1, 1, 0, 0
    VTPLayer 8, 1
    VTPNumTexturesInLayer 1, 0
 
    VTPTextureId 0, 0
    VTPPolyCount 1, 0
 
      VTPPolyMethod2 7, 1, 0
        VTPWidePoint 5455, 1, 5993, 0
        VTPWidePointWidth 1
        VTPWidePoint 5455, 1, 5993, 0
        VTPWidePointWidth 80
        VTPWidePoint 5457, 0, 5998, 0
        VTPWidePoint 5495, 0, 6093, 0
        VTPWidePoint 5590, 0, 6140, 0
        VTPWidePoint 5595, 0, 6142, 0
        VTPWidePoint 5595, 1, 6142, 0
        VTPWidePointWidth 0
 
    datamark_v1  label word
; ========================================================================================================
; In next line, VTPCellID set by Tidemark
Cellv_400_100    EQU  VTPCellID 0, 400, 100
 
; ========================================================================================================
    VTPIndexStart   label   word
  VTPIndexHeader 1, VTPIndexData, VTPStart
    VTPIndexData    label   word
    VTPIndexEntry Cellv_400_100, VTPStart, datamark_v0, datamark_v1
 
; ========================================================================================================
 
TextureStart    label   word
    VTPTextureListHeader 8, TextureIndexStart, TextureDataStart, TextureDataEnd
 
TextureIndexStart   label   word
    VTPTextureListEntry TextureDataStart, texturemark_0, texturemark_1
    VTPTextureListEntry TextureDataStart, texturemark_1, texturemark_2
    VTPTextureListEntry TextureDataStart, texturemark_2, texturemark_3
    VTPTextureListEntry TextureDataStart, texturemark_3, texturemark_4
    VTPTextureListEntry TextureDataStart, texturemark_4, texturemark_5
    VTPTextureListEntry TextureDataStart, texturemark_5, texturemark_6
    VTPTextureListEntry TextureDataStart, texturemark_6, texturemark_7
    VTPTextureListEntry TextureDataStart, texturemark_7, texturemark_8
 
TextureDataStart    label   word
    texturemark_0   label   word
        VTPTextureName "1029"
        VTPTextureType 2, 0, 0, 4
    texturemark_1   label   word
        VTPTextureName "1062"
        VTPTextureType 2, 0, 0, 4
    texturemark_2   label   word
        VTPTextureName "1031"
        VTPTextureType 2, 0, 0, 4
    texturemark_3   label   word
        VTPTextureName "1116"
        VTPTextureType 2, 0, 0, 4
    texturemark_4   label   word
        VTPTextureName "1024"
        VTPTextureType 2, 0, 0, 4
    texturemark_5   label   word
        VTPTextureName "1040"
        VTPTextureType 2, 0, 0, 4
    texturemark_6   label   word
        VTPTextureName "1158"
        VTPTextureType 2, 0, 0, 4
    texturemark_7   label   word
        VTPTextureName "1134"
        VTPTextureType 2, 0, 0, 4
    texturemark_8   label   word
TextureDataEnd  label   word
; ========================================================================================================
 
VTPEnd      label   word
 
; End of VTP file
