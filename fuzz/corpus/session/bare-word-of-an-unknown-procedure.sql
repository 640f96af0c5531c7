EXEC R [x]
