# cmake -DIN=file -DOUT=file -DNAME=value... -P FillIn.cmake: puts the values in place of @NAME@.
configure_file(${IN} ${OUT} @ONLY)
# A file that stays the same keeps its time, and the build would make it again each time.
file(TOUCH ${OUT})
