// The lists of what the platform has on which system, as parts of the program.
    .section .rodata
    .global lyrPrivateFacts, lyrPrivateFactsEnd, lyrAvailability, lyrAvailabilityEnd
lyrPrivateFacts:
    .incbin "Phone/private.txt"
lyrPrivateFactsEnd:
lyrAvailability:
    .incbin "Phone/availability.txt"
lyrAvailabilityEnd:
    .section .note.GNU-stack, "", %progbits
