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
 
 
  VTPDataArea 1, 1, 0, 0
    VTPLayer 8, 1
    VTPNumTexturesInLayer 4, 0
 
    VTPTextureId 0, 0
    VTPPolyCount 2, 0
 
      VTPPolyMethod2 6, 1, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 1
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 18
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 0
 
      VTPPolyMethod2 6, 1, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 1
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 28
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 0
 
    VTPTextureId 1, 0
    VTPPolyCount 1, 0
 
      VTPPolyMethod2 6, 1, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 1
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 22
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 0
 
    VTPTextureId 2, 0
    VTPPolyCount 1, 0
 
      VTPPolyMethod2 6, 1, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 1
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 46
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 0
 
    VTPTextureId 3, 0
    VTPPolyCount 1, 0
 
      VTPPolyMethod2 6, 1, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 1
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 54
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 0
 
 
  VTPDataArea 1, 1, 0, 0
    VTPLayer 16, 1
    VTPNumTexturesInLayer 1, 0
 
    VTPTextureId 4, 0
    VTPPolyCount 3, 0
 
      VTPPolyMethod2 6, 1, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 1
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 62
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 0
 
      VTPPolyMethod2 31, 1, 0
        VTPWidePoint 4997, 1, 5993, 0
        VTPWidePointWidth 1
        VTPWidePoint 4997, 1, 5993, 0
        VTPWidePointWidth 80
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 1, 5993, 0
        VTPWidePointWidth 0
 
      VTPPolyMethod2 31, 1, 0
      VTPPolyMethod2Ex 1
        VTPWidePoint 4997, 1, 5993, 0
        VTPWidePointWidth 1
        VTPWidePoint 4997, 1, 5993, 0
        VTPWidePointWidth 80
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 0, 5993, 0
        VTPWidePoint 4997, 1, 5993, 0
        VTPWidePointWidth 0
 
 
  VTPDataArea 1, 1, 0, 0
    VTPLayer 31, 1
    VTPNumTexturesInLayer 1, 0
 
    VTPTextureId 5, 0
    VTPPolyCount 1, 0
 
      VTPPolyMethod2 6, 1, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 1
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 70
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 0
 
 
  VTPDataArea 1, 1, 0, 0
    VTPLayer 32, 1
    VTPNumTexturesInLayer 2, 0
 
    VTPTextureId 6, 0
    VTPPolyCount 1, 0
 
      VTPPolyMethod2 6, 1, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 1
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 74
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 0
 
    VTPTextureId 7, 0
    VTPPolyCount 1, 0
 
      VTPPolyMethod2 6, 1, 0
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 1
        VTPWidePoint 5865, 1, 5355, 0
        VTPWidePointWidth 90
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 0, 5355, 0
        VTPWidePoint 5865, 1, 5355, 0
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
