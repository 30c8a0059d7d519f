# cmake -D TOOL=<sqlcipher> -D BOOK=<db.mdb> -D SCRATCH=<folder> -P OutilSqlcipher.cmake
#
# The stock tool opens a copy of the delivered book with its pass phrase, looks up a text, changes, adds and strikes
# rows, and finds the file sound: nothing in it depends on our own comparison of texts.
cmake_minimum_required(VERSION 3.25)

file(MAKE_DIRECTORY ${SCRATCH})
file(COPY_FILE ${BOOK} ${SCRATCH}/db.mdb)
file(WRITE ${SCRATCH}/commands.sql "
PRAGMA key = 'PoivreEtSel4';
PRAGMA cipher_page_size = 4096;
SELECT 'quiches ' || count(*) FROM Cocktails WHERE Recette = 'QUICHE LORRAINE';
INSERT INTO Cocktails (Numero, Recette) VALUES (999, 'Essai');
UPDATE Cocktails SET Recette = 'Autre essai' WHERE Numero = 999;
SELECT 'dernier ' || Recette FROM Cocktails ORDER BY Numero DESC LIMIT 1;
DELETE FROM Cocktails WHERE Numero = 999;
SELECT 'recettes ' || count(*) FROM Cocktails;
PRAGMA integrity_check;
")
execute_process(COMMAND ${TOOL} -batch ${SCRATCH}/db.mdb INPUT_FILE ${SCRATCH}/commands.sql
                OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
file(REMOVE_RECURSE ${SCRATCH})
if(NOT result EQUAL 0 OR NOT output MATCHES "quiches 1\ndernier Autre essai\nrecettes [1-9][0-9]*\nok\n")
  message(FATAL_ERROR "The stock tool says:\n${output}")
endif()
