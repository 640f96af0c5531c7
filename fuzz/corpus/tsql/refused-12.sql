UPDATE t a = 1
