# The build step behind embed_text: INPUT's text as a raw string literal in OUTPUT.
file(READ ${INPUT} text)
file(WRITE ${OUTPUT} "R\"__(${text})__\"\n")
