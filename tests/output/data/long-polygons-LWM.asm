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
         LWMPoly2 4, 0, 0,-9999, 0
           LWMPoint 0, 0
           LWMPoint 255, 0
           LWMPoint 255, 255
           LWMPoint 0, 255
 
       LWMDataAreaDrawPolygons 1, 3, 1, 13, 7
         LWMPoly2 62, 0, 1, 0, 0
           LWMPoint 0, 0
           LWMPoint 255, 0
           LWMPoint 255, 255
           LWMPoint 0, 255
           LWMPoint 0, 249
           LWMPoint 0, 248
           LWMPoint 0, 247
           LWMPoint 0, 246
           LWMPoint 0, 245
           LWMPoint 0, 244
           LWMPoint 0, 243
           LWMPoint 0, 242
           LWMPoint 0, 241
           LWMPoint 0, 240
           LWMPoint 0, 239
           LWMPoint 0, 238
           LWMPoint 0, 237
           LWMPoint 0, 236
           LWMPoint 0, 235
           LWMPoint 0, 234
           LWMPoint 0, 233
           LWMPoint 0, 232
           LWMPoint 0, 231
           LWMPoint 0, 230
           LWMPoint 0, 229
           LWMPoint 0, 228
           LWMPoint 0, 227
           LWMPoint 0, 226
           LWMPoint 0, 225
           LWMPoint 0, 224
           LWMPoint 0, 223
           LWMPoint 0, 222
           LWMPoint 0, 221
           LWMPoint 0, 220
           LWMPoint 0, 219
           LWMPoint 0, 218
           LWMPoint 0, 217
           LWMPoint 0, 216
           LWMPoint 0, 215
           LWMPoint 0, 214
           LWMPoint 0, 213
           LWMPoint 0, 212
           LWMPoint 0, 211
           LWMPoint 0, 210
           LWMPoint 0, 209
           LWMPoint 0, 208
           LWMPoint 0, 207
           LWMPoint 0, 206
           LWMPoint 0, 205
           LWMPoint 0, 204
           LWMPoint 0, 203
           LWMPoint 0, 202
           LWMPoint 0, 201
           LWMPoint 0, 200
           LWMPoint 0, 199
           LWMPoint 0, 198
           LWMPoint 0, 197
           LWMPoint 0, 196
           LWMPoint 0, 195
           LWMPoint 0, 194
           LWMPoint 0, 193
           LWMPoint 0, 192
 
       LWMDataAreaDrawPolygons 1, 3, 1, 12, 8
         LWMPoly2Ex 63, 0, 1, 15, 0, 0
           LWMPoint 0, 0
           LWMPoint 255, 0
           LWMPoint 255, 255
           LWMPoint 0, 255
           LWMPoint 0, 249
           LWMPoint 0, 248
           LWMPoint 0, 247
           LWMPoint 0, 246
           LWMPoint 0, 245
           LWMPoint 0, 244
           LWMPoint 0, 243
           LWMPoint 0, 242
           LWMPoint 0, 241
           LWMPoint 0, 240
           LWMPoint 0, 239
           LWMPoint 0, 238
           LWMPoint 0, 237
           LWMPoint 0, 236
           LWMPoint 0, 235
           LWMPoint 0, 234
           LWMPoint 0, 233
           LWMPoint 0, 232
           LWMPoint 0, 231
           LWMPoint 0, 230
           LWMPoint 0, 229
           LWMPoint 0, 228
           LWMPoint 0, 227
           LWMPoint 0, 226
           LWMPoint 0, 225
           LWMPoint 0, 224
           LWMPoint 0, 223
           LWMPoint 0, 222
           LWMPoint 0, 221
           LWMPoint 0, 220
           LWMPoint 0, 219
           LWMPoint 0, 218
           LWMPoint 0, 217
           LWMPoint 0, 216
           LWMPoint 0, 215
           LWMPoint 0, 214
           LWMPoint 0, 213
           LWMPoint 0, 212
           LWMPoint 0, 211
           LWMPoint 0, 210
           LWMPoint 0, 209
           LWMPoint 0, 208
           LWMPoint 0, 207
           LWMPoint 0, 206
           LWMPoint 0, 205
           LWMPoint 0, 204
           LWMPoint 0, 203
           LWMPoint 0, 202
           LWMPoint 0, 201
           LWMPoint 0, 200
           LWMPoint 0, 199
           LWMPoint 0, 198
           LWMPoint 0, 197
           LWMPoint 0, 196
           LWMPoint 0, 195
           LWMPoint 0, 194
           LWMPoint 0, 193
           LWMPoint 0, 192
           LWMPoint 0, 191
 
       LWMDataAreaDrawPolygons 1, 3, 1, 13, 8
         LWMPoly2Ex 63, 0, 0,10000, 0, 137
           LWMPoint 0, 0
           LWMPoint 255, 0
           LWMPoint 255, 255
           LWMPoint 0, 255
           LWMPoint 0, 249
           LWMPoint 0, 248
           LWMPoint 0, 247
           LWMPoint 0, 246
           LWMPoint 0, 245
           LWMPoint 0, 244
           LWMPoint 0, 243
           LWMPoint 0, 242
           LWMPoint 0, 241
           LWMPoint 0, 240
           LWMPoint 0, 239
           LWMPoint 0, 238
           LWMPoint 0, 237
           LWMPoint 0, 236
           LWMPoint 0, 235
           LWMPoint 0, 234
           LWMPoint 0, 233
           LWMPoint 0, 232
           LWMPoint 0, 231
           LWMPoint 0, 230
           LWMPoint 0, 229
           LWMPoint 0, 228
           LWMPoint 0, 227
           LWMPoint 0, 226
           LWMPoint 0, 225
           LWMPoint 0, 224
           LWMPoint 0, 223
           LWMPoint 0, 222
           LWMPoint 0, 221
           LWMPoint 0, 220
           LWMPoint 0, 219
           LWMPoint 0, 218
           LWMPoint 0, 217
           LWMPoint 0, 216
           LWMPoint 0, 215
           LWMPoint 0, 214
           LWMPoint 0, 213
           LWMPoint 0, 212
           LWMPoint 0, 211
           LWMPoint 0, 210
           LWMPoint 0, 209
           LWMPoint 0, 208
           LWMPoint 0, 207
           LWMPoint 0, 206
           LWMPoint 0, 205
           LWMPoint 0, 204
           LWMPoint 0, 203
           LWMPoint 0, 202
           LWMPoint 0, 201
           LWMPoint 0, 200
           LWMPoint 0, 199
           LWMPoint 0, 198
           LWMPoint 0, 197
           LWMPoint 0, 196
           LWMPoint 0, 195
           LWMPoint 0, 194
           LWMPoint 0, 193
           LWMPoint 0, 192
           LWMPoint 0, 191
           LWMPoint 0, 190
           LWMPoint 0, 189
           LWMPoint 0, 188
           LWMPoint 0, 187
           LWMPoint 0, 186
           LWMPoint 0, 185
           LWMPoint 0, 184
           LWMPoint 0, 183
           LWMPoint 0, 182
           LWMPoint 0, 181
           LWMPoint 0, 180
           LWMPoint 0, 179
           LWMPoint 0, 178
           LWMPoint 0, 177
           LWMPoint 0, 176
           LWMPoint 0, 175
           LWMPoint 0, 174
           LWMPoint 0, 173
           LWMPoint 0, 172
           LWMPoint 0, 171
           LWMPoint 0, 170
           LWMPoint 0, 169
           LWMPoint 0, 168
           LWMPoint 0, 167
           LWMPoint 0, 166
           LWMPoint 0, 165
           LWMPoint 0, 164
           LWMPoint 0, 163
           LWMPoint 0, 162
           LWMPoint 0, 161
           LWMPoint 0, 160
           LWMPoint 0, 159
           LWMPoint 0, 158
           LWMPoint 0, 157
           LWMPoint 0, 156
           LWMPoint 0, 155
           LWMPoint 0, 154
           LWMPoint 0, 153
           LWMPoint 0, 152
           LWMPoint 0, 151
           LWMPoint 0, 150
           LWMPoint 0, 149
           LWMPoint 0, 148
           LWMPoint 0, 147
           LWMPoint 0, 146
           LWMPoint 0, 145
           LWMPoint 0, 144
           LWMPoint 0, 143
           LWMPoint 0, 142
           LWMPoint 0, 141
           LWMPoint 0, 140
           LWMPoint 0, 139
           LWMPoint 0, 138
           LWMPoint 0, 137
           LWMPoint 0, 136
           LWMPoint 0, 135
           LWMPoint 0, 134
           LWMPoint 0, 133
           LWMPoint 0, 132
           LWMPoint 0, 131
           LWMPoint 0, 130
           LWMPoint 0, 129
           LWMPoint 0, 128
           LWMPoint 0, 127
           LWMPoint 0, 126
           LWMPoint 0, 125
           LWMPoint 0, 124
           LWMPoint 0, 123
           LWMPoint 0, 122
           LWMPoint 0, 121
           LWMPoint 0, 120
           LWMPoint 0, 119
           LWMPoint 0, 118
           LWMPoint 0, 117
           LWMPoint 0, 116
           LWMPoint 0, 115
           LWMPoint 0, 114
           LWMPoint 0, 113
           LWMPoint 0, 112
           LWMPoint 0, 111
           LWMPoint 0, 110
           LWMPoint 0, 109
           LWMPoint 0, 108
           LWMPoint 0, 107
           LWMPoint 0, 106
           LWMPoint 0, 105
           LWMPoint 0, 104
           LWMPoint 0, 103
           LWMPoint 0, 102
           LWMPoint 0, 101
           LWMPoint 0, 100
           LWMPoint 0, 99
           LWMPoint 0, 98
           LWMPoint 0, 97
           LWMPoint 0, 96
           LWMPoint 0, 95
           LWMPoint 0, 94
           LWMPoint 0, 93
           LWMPoint 0, 92
           LWMPoint 0, 91
           LWMPoint 0, 90
           LWMPoint 0, 89
           LWMPoint 0, 88
           LWMPoint 0, 87
           LWMPoint 0, 86
           LWMPoint 0, 85
           LWMPoint 0, 84
           LWMPoint 0, 83
           LWMPoint 0, 82
           LWMPoint 0, 81
           LWMPoint 0, 80
           LWMPoint 0, 79
           LWMPoint 0, 78
           LWMPoint 0, 77
           LWMPoint 0, 76
           LWMPoint 0, 75
           LWMPoint 0, 74
           LWMPoint 0, 73
           LWMPoint 0, 72
           LWMPoint 0, 71
           LWMPoint 0, 70
           LWMPoint 0, 69
           LWMPoint 0, 68
           LWMPoint 0, 67
           LWMPoint 0, 66
           LWMPoint 0, 65
           LWMPoint 0, 64
           LWMPoint 0, 63
           LWMPoint 0, 62
           LWMPoint 0, 61
           LWMPoint 0, 60
           LWMPoint 0, 59
           LWMPoint 0, 58
           LWMPoint 0, 57
           LWMPoint 0, 56
           LWMPoint 0, 55
           LWMPoint 0, 54
    datamark_1  label   word
 
    Cellv_400_100    EQU  LWMCellID 0, 0, 3, 400, 100
 
    LWMIndexStart   label   word
 
        LWMIndexHeader 1, LWMIndexData
 
    LWMIndexData    label   word
 
        LWMIndexEntry Cellv_400_100, LWMStart, datamark_0, datamark_1
 
LWMEnd  label   word
 
; End of LWM file
