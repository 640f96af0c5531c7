EXEC p @a = 
